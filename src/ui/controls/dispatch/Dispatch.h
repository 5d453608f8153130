#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <variant>

class QWidget;

namespace dyeworks {

// What the program and a companion control know of each other. A control is a library of its own; its members
// and events are numbers, and everything that passes between the two sides is one of the types below.

/// Number of a member or an event of a control. Members and events are numbered apart.
using DispatchId = std::int32_t;

enum class DispatchKind { Method, Get, Set };

/// An argument or a result. Nothing: the result of a member that has none. Integers of different widths stand
/// for each other as long as the value fits, and a bool for 0 and 1; other types must be exactly what the
/// member takes. Pointers are filled by the callee, which keeps none of them; null where the member allows
/// it.
using DispatchValue =
    std::variant<std::monostate, std::int16_t, std::int32_t, bool, std::string, std::int16_t*, std::string*>;

enum class DispatchStatus {
    Done,
    MemberNotFound,    ///< There is no member of that number and kind.
    BadParameterCount, ///< Too few or too many arguments; nothing was done.
    BadParameter       ///< An argument of a wrong type or out of range; nothing was done.
};

struct DispatchResult {
    DispatchStatus status = DispatchStatus::Done;
    DispatchValue value; ///< Nothing unless `status` is Done.
};

using DispatchArguments = std::span<const DispatchValue>;

/// Whoever hears the events of a control.
class ControlSink {
public:
    virtual void controlEvent(DispatchId event, DispatchArguments arguments) = 0;

protected:
    ~ControlSink() = default;
};

/// An object of a companion control. Its library stays loaded as long as it lives.
class Control {
public:
    Control() = default;
    virtual ~Control() = default;
    Control(const Control&) = delete;
    Control& operator=(const Control&) = delete;

    /// `arguments` in the order of the member's signature; one, the new value, to set a property.
    [[nodiscard]] virtual DispatchResult invoke(DispatchId member, DispatchKind kind,
                                                DispatchArguments arguments) = 0;

    /// Events go to `sink` from now on; null: nowhere. Nothing that is set through `invoke` raises one.
    virtual void setSink(ControlSink* sink) = 0;

    /// The control's window, to be placed by the caller but owned by the control; null when it has none.
    [[nodiscard]] virtual QWidget* widget() = 0;
};

/// What every control's library exports, by these names.
inline constexpr const char* kRegisterControlName = "DllRegisterServer";
inline constexpr const char* kCreateControlName = "DyeworksCreateControl";
/// 0: the library's class is registered with the running application.
using RegisterControlFunction = std::int32_t();
/// The caller owns the object. Needs a QApplication.
using CreateControlFunction = Control*();

/// Classes are registered in a property of the application object named by this and the class ("SwatchGrid");
/// its value is the file that has the class, as it is known in the program's folder ("SwatchGrid.ocx").
inline constexpr const char* kControlPropertyPrefix = "dyeworks.control.";

} // namespace dyeworks
