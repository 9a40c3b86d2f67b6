// Port: other programs that let themselves be driven, by the names of their objects' members.
#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <stdexcept>
#include <string>
#include <variant>
#include <vector>

namespace korvet {

/// The other program has refused, or is not there any more; what() says why.
class AutomationError : public std::runtime_error {
  public:
    using std::runtime_error::runtime_error;
};

class AutomationObject;

/// What goes into a member and comes out of it. Nothing, a truth, a whole number, a number, a text (UTF-8),
/// an array of numbers, an object.
using AutomationValue = std::variant<std::monostate, bool, std::int32_t, double, std::string,
                                     std::vector<double>, std::shared_ptr<AutomationObject>>;

class AutomationObject {
  public:
    AutomationObject() = default;
    AutomationObject(const AutomationObject&) = delete;
    AutomationObject& operator=(const AutomationObject&) = delete;
    virtual ~AutomationObject() = default;

    // All throw AutomationError.

    /// The value of a property.
    [[nodiscard]] virtual AutomationValue Get(const std::string& name) = 0;

    /// Gives a property a value.
    virtual void Put(const std::string& name, const AutomationValue& value) = 0;

    /// Calls a method. The first `results` arguments are its results, and hold them afterwards.
    virtual AutomationValue Call(const std::string& name, std::vector<AutomationValue>& arguments,
                                 std::size_t results) = 0;
};

class Automation {
  public:
    Automation() = default;
    Automation(const Automation&) = delete;
    Automation& operator=(const Automation&) = delete;
    virtual ~Automation() = default;

    /// The object of a program that runs now, by the name under which it has registered itself; none is
    /// started. Null when none runs.
    [[nodiscard]] virtual std::shared_ptr<AutomationObject> Running(const std::string& progId) = 0;
};

}  // namespace korvet
