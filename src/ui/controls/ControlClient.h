#pragma once

#include "platform/Library.h"
#include "ui/controls/dispatch/Dispatch.h"

#include <functional>
#include <initializer_list>
#include <memory>

namespace dyeworks {

/// An object of a registered companion control, for the wrappers to call. When the control is not registered
/// or its library cannot be loaded there is no object, and calls do nothing. Not to be destroyed while it
/// hears an event: the code that raises it would be unloaded.
class ControlClient final : private ControlSink {
public:
    using EventHandler = std::function<void(DispatchId, DispatchArguments)>;

    /// Creates an object of a class ("SwatchGrid"). `onEvent` hears its events.
    explicit ControlClient(const char* className, EventHandler onEvent = {});
    ~ControlClient();
    ControlClient(const ControlClient&) = delete;
    ControlClient& operator=(const ControlClient&) = delete;

    [[nodiscard]] bool exists() const noexcept { return control_ != nullptr; }
    /// Owned by the control; null when it has none or there is no control.
    [[nodiscard]] QWidget* widget() const;

    void call(DispatchId member, std::initializer_list<DispatchValue> arguments) const;
    void set(DispatchId property, const DispatchValue& value) const;

    /// The member's result, or `otherwise` without a control or when it refuses the call.
    template <typename Value>
    [[nodiscard]] Value call(DispatchId member, std::initializer_list<DispatchValue> arguments,
                             Value otherwise) const {
        return valueOr(invoke(member, DispatchKind::Method, arguments), otherwise);
    }
    template <typename Value>
    [[nodiscard]] Value get(DispatchId property, Value otherwise) const {
        return valueOr(invoke(property, DispatchKind::Get, {}), otherwise);
    }

private:
    [[nodiscard]] DispatchResult invoke(DispatchId member, DispatchKind kind,
                                        std::initializer_list<DispatchValue> arguments) const;
    void controlEvent(DispatchId event, DispatchArguments arguments) override;

    template <typename Value>
    static Value valueOr(const DispatchResult& result, Value otherwise) {
        const Value* value = std::get_if<Value>(&result.value);
        return value == nullptr ? otherwise : *value;
    }

    EventHandler onEvent_;
    // Before the object, whose code it holds: it must be unloaded after it.
    std::unique_ptr<LoadedLibrary> library_;
    std::unique_ptr<Control> control_;
};

} // namespace dyeworks
