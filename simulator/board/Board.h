#pragma once

#include <json/value.h>

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <string>

#include "simulator/board/PropertyStore.h"
#include "simulator/description/BoardModel.h"
#include "values/Value.h"

namespace tarn::simulator {

struct Event {
    uint32_t type;
    values::Bytes data;
};

/** A request taken apart. */
struct Request {
    const CommandDescription* command;
    values::Record arguments;
};

/** The reply that is a status and nothing else. */
values::Bytes statusReply(int32_t status);

/**
 * The simulated board itself: its state, and what each command does to it. Any thread may call; a
 * command is carried out whole before the next one begins.
 */
class Board {
  public:
    explicit Board(std::shared_ptr<const BoardModel> model);

    const BoardModel& model() const { return *mModel; }

    /**
     * Finds the command that the bytes are a request of, to the last byte. Nothing if the code is
     * unknown, or if the arguments are cut, malformed or too many.
     */
    std::optional<Request> decode(const void* data, size_t size) const;

    /**
     * Carries a command out and returns the reply's bytes. A value that a property doesn't accept
     * changes nothing and gives status -1.
     * @param raise takes the command's event; it is called with the state locked, so that events
     * are raised in the order of the changes that they tell of, and must only queue it
     */
    values::Bytes execute(const Request& request, const std::function<void(Event)>& raise);

    /** Back to the initial values. */
    void reset();

    /** Name, type, range and value of every property. */
    Json::Value listProperties() const;

    /**
     * A property by its name, an element of an indexed one as "name[index]"; without an index the
     * elements that were set. Throws std::invalid_argument if there is none.
     */
    Json::Value property(const std::string& name) const;

    /** Sets a property or an element; throws std::invalid_argument if it doesn't accept that. */
    void setProperty(const std::string& name, const Json::Value& value);

    /** The same with a value as a person types it. */
    void setPropertyFromText(const std::string& name, const std::string& value);

  private:
    struct Place {
        size_t property;
        std::optional<std::string> index;

        std::string element() const { return index.value_or(""); }
    };

    Place find(const std::string& name) const;
    Place findElement(const std::string& name) const;
    void store(const std::string& name, const Place& place, values::Value value);
    Json::Value propertyValue(size_t property) const;
    Json::Value describeProperty(size_t property) const;
    bool assign(const Request& request, const std::string& index);
    values::Value evaluate(const Expression& expression, const Request& request,
                           const std::string& index) const;

    const std::shared_ptr<const BoardModel> mModel;
    mutable std::mutex mLock;
    PropertyStore mStore;
};

}  // namespace tarn::simulator
