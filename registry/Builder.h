#pragma once

#include <cstring>
#include <optional>
#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "registry/Arguments.h"
#include "registry/Registry.h"
#include "registry/Results.h"

namespace tarn::registry {

using protocol::Row;

/** The row of a method that sends no command. */
constexpr std::nullopt_t kNoCommand = std::nullopt;

/** The slot of a virtual method: C++ member pointers of the ABIs in use hold its table offset. */
template <typename MemberFunction>
size_t slotOf(MemberFunction method) {
    uintptr_t word = 0;
    static_assert(sizeof(method) >= sizeof(word));
    memcpy(&word, &method, sizeof(word));
    return (word & ~static_cast<uintptr_t>(1)) / sizeof(void*);
}

/** Picks one overload: overload<bool(int)>(&IAvManagerCtrl::setMicAlgorithm). */
template <typename Signature, typename Interface>
constexpr auto overload(Signature Interface::*method) {
    return method;
}

/**
 * Describes a controller, one line a method in slot order. Argument parsing and printing come
 * from the types:
 *
 *     Builder<IAudioCtrl>(registry, "audio", "AudioCtrl", &ITarnManager::getAudioCtrl)
 *             .method("setVolume", Row::CMD_AUDIO_SET_VOLUME, &IAudioCtrl::setVolume, "volume");
 */
template <typename Interface>
class Builder {
  public:
    using Accessor = Interface* (android::ITarnManager::*)();

    Builder(std::vector<Controller>* registry, const char* name, const char* className,
            Accessor accessor)
        : mController(&registry->emplace_back()), mAccessor(accessor) {
        mController->name = name;
        mController->className = className;
    }

    /** A method whose parameters are all values. argumentNames: separated by ", ". */
    template <typename Result, typename... Parameters>
    Builder& method(const char* name, std::optional<Row> row,
                    Result (Interface::*function)(Parameters...), const char* argumentNames = "") {
        return add(
                name, row, slotOf(function), argumentNames,
                std::function<Result(Interface&, Parameters...)>(
                        [function](Interface& controller, Parameters... arguments) -> Result {
                            return (controller.*function)(std::forward<Parameters>(arguments)...);
                        }));
    }

    /**
     * A method with parameters that a command line can't give one by one (an array and its
     * count, something to fill): adapter takes the interface and friendly values and makes the
     * call; function names the slot.
     */
    template <typename Function, typename Adapter>
    Builder& adapted(const char* name, std::optional<Row> row, Function function, Adapter adapter,
                     const char* argumentNames = "") {
        return add(name, row, slotOf(function), argumentNames, std::function(adapter));
    }

    /** Of the method just added: its "data" is for whoever knows the command's layout to decode. */
    Builder& undecoded() {
        mController->methods.back().undecoded = true;
        return *this;
    }

  private:
    template <typename Result, typename... Parameters>
    Builder& add(const char* name, std::optional<Row> row, size_t slot, const char* argumentNames,
                 std::function<Result(Interface&, Parameters...)> function) {
        Method method;
        method.name = name;
        if (row) method.row = &protocol::commandOf(*row);
        method.slot = slot;
        method.arguments = describeArguments<Parameters...>(argumentNames);
        method.result = ResultWriter<std::decay_t<Result>>::kType;
        method.call = [accessor = mAccessor, function, arguments = method.arguments](
                              android::ITarnManager* manager,
                              const std::vector<std::string>& texts) {
            return call<Result, Parameters...>(manager, accessor, function, arguments, texts,
                                               std::index_sequence_for<Parameters...>());
        };
        mController->methods.push_back(std::move(method));
        return *this;
    }

    template <typename Result, typename... Parameters, size_t... Index>
    static Json::Value call(android::ITarnManager* manager, Accessor accessor,
                            const std::function<Result(Interface&, Parameters...)>& function,
                            const std::vector<Argument>& arguments,
                            const std::vector<std::string>& texts, std::index_sequence<Index...>) {
        std::tuple<HeldArgument<Parameters>...> held{
                HeldArgument<Parameters>(arguments[Index].name, texts[Index])...};
        if (manager == nullptr) return Json::Value();
        return toJson<std::decay_t<Result>>(
                function(*(manager->*accessor)(), std::get<Index>(held).get()...));
    }

    template <typename... Parameters>
    static std::vector<Argument> describeArguments(const std::string& names) {
        std::vector<Argument> arguments;
        size_t start = 0;
        [[maybe_unused]] const auto next = [&] {
            const size_t comma = names.find(", ", start);
            const std::string name = names.substr(start, comma - start);
            start = comma == std::string::npos ? names.size() : comma + 2;
            return name;
        };
        (arguments.push_back(Argument{next(), HeldArgument<Parameters>::type()}), ...);
        return arguments;
    }

    Controller* mController;
    Accessor mAccessor;
};

}  // namespace tarn::registry
