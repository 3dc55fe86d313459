#pragma once

#include <tarn/ITarnManager.h>

#include <cstddef>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "protocol/Catalog.h"
#include "registry/Call.h"
#include "registry/ParameterTypes.h"
#include "registry/ResultTypes.h"

/**
 * A method whose arguments are named as the fields of its command's request, on a Builder called
 * builder: METHOD(setVolume, CMD_AUDIO_SET_VOLUME);
 */
#define METHOD(name, command) \
    builder.method(#name, ::tarn::protocol::Row::command, &decltype(builder)::Interface::name)

namespace tarn::registry {

using protocol::Row;

struct Controller;

/** The row of a method that sends no command. */
constexpr std::nullopt_t kNoCommand = std::nullopt;

/** Picks one overload: overload<bool(int)>(&IAvManagerCtrl::setMicAlgorithm). */
template <typename Function, typename Interface>
constexpr auto overload(Function Interface::*method) {
    return method;
}

template <typename T>
using Plain = std::remove_cv_t<std::remove_reference_t<T>>;

/** The types that a Target of these has forgotten. */
template <typename Interface, typename Result, typename... Parameters>
struct Typed {
    using Accessor = Interface* (android::ITarnManager::*)();
    using Method = Result (Interface::*)(Parameters...);
    using Adapter = Result (*)(Interface&, Parameters...);

    template <size_t... Index>
    static Answer callMethod(const Target& target, android::ITarnManager* manager,
                             ArgumentValue* values, std::index_sequence<Index...>) {
        Interface* controller = (manager->*target.accessor.as<Accessor>())();
        return ResultType<Plain<Result>>::answer((controller->*target.method.as<Method>())(
                Parameter<Plain<Parameters>>::from(values[Index])...));
    }

    template <size_t... Index>
    static Answer callAdapter(const Target& target, android::ITarnManager* manager,
                              ArgumentValue* values, std::index_sequence<Index...>) {
        Interface* controller = (manager->*target.accessor.as<Accessor>())();
        return ResultType<Plain<Result>>::answer(target.adapter.as<Adapter>()(
                *controller, Parameter<Plain<Parameters>>::from(values[Index])...));
    }

    static Answer invokeMethod(const Target& target, android::ITarnManager* manager,
                               ArgumentValue* values) {
        return callMethod(target, manager, values, std::index_sequence_for<Parameters...>());
    }

    static Answer invokeAdapter(const Target& target, android::ITarnManager* manager,
                                ArgumentValue* values) {
        return callAdapter(target, manager, values, std::index_sequence_for<Parameters...>());
    }

    static constexpr const ParameterType* kParameters[] = {Parameter<Plain<Parameters>>::kType...,
                                                           nullptr};
    static constexpr Signature kMethod = {invokeMethod, kParameters,
                                          ResultType<Plain<Result>>::kKind,
                                          ResultType<Plain<Result>>::kWords};
    static constexpr Signature kAdapter = {invokeAdapter, kParameters,
                                           ResultType<Plain<Result>>::kKind,
                                           ResultType<Plain<Result>>::kWords};
};

/** What a Builder does for every interface alike. */
class ControllerBuilder {
  public:
    /** Of the method just added: its "data" is for whoever knows the command's layout to decode. */
    void undecoded();

  protected:
    ControllerBuilder(std::vector<Controller>* registry, const char* name, const char* className);

    /** Without names, the arguments have those of the row's request. */
    ControllerBuilder& add(const char* name, std::optional<Row> row, const Target& target,
                           const Signature& signature, const char* argumentNames);

  private:
    Controller* mController;
};

/**
 * Describes a controller, one line a method in slot order:
 *
 *     Builder<IAudioCtrl> builder(registry, "audio", "AudioCtrl", &ITarnManager::getAudioCtrl);
 *     METHOD(setVolume, CMD_AUDIO_SET_VOLUME);
 */
template <typename T>
class Builder : public ControllerBuilder {
  public:
    using Interface = T;
    using Accessor = Interface* (android::ITarnManager::*)();

    Builder(std::vector<Controller>* registry, const char* name, const char* className,
            Accessor accessor)
        : ControllerBuilder(registry, name, className), mAccessor(accessor) {}

    /** A method whose parameters are all values. argumentNames: separated by ", ". */
    template <typename Result, typename... Parameters>
    void method(const char* name, Row row, Result (Interface::*function)(Parameters...),
                const char* argumentNames = nullptr) {
        add(name, row, Target{mAccessor, AnyPointer(function), AnyPointer()},
            Typed<Interface, Result, Parameters...>::kMethod, argumentNames);
    }

    /**
     * A method with parameters that can't be given one by one (an array and its count, something
     * to fill): adapter, as +[](IAudioCtrl& audio, ...) { ... }, takes the interface and friendly
     * values and makes the call; function names the slot.
     */
    template <typename Function, typename Result, typename... Parameters>
    ControllerBuilder& adapted(const char* name, std::optional<Row> row,
                               Function Interface::*function,
                               Result (*adapter)(Interface&, Parameters...),
                               const char* argumentNames = "") {
        return add(name, row, Target{mAccessor, AnyPointer(function), AnyPointer(adapter)},
                   Typed<Interface, Result, Parameters...>::kAdapter, argumentNames);
    }

  private:
    AnyPointer mAccessor;
};

}  // namespace tarn::registry
