#pragma once

#include "platform/fake/FakePlatform.h"
#include "ui/controls/dispatch/Dispatch.h"

#include <QTest>
#include <QWidget>
#include <gmock/gmock.h>

#include <initializer_list>
#include <memory>
#include <string>
#include <vector>

namespace dyeworks {

/// Writes events down: "1(0,0,3,2)".
class RecordingSink final : public ControlSink {
public:
    void controlEvent(DispatchId event, DispatchArguments arguments) override;
    /// The events since the last call.
    std::vector<std::string> taken() { return std::exchange(events_, {}); }
    /// Answers every question for a cell's text with this; no answer while it is empty.
    std::string description;

private:
    std::vector<std::string> events_;
};

/// As a member's short argument, or several.
inline DispatchValue shortValue(int value) {
    return static_cast<std::int16_t>(value);
}
std::vector<DispatchValue> shortValues(std::initializer_list<int> values);
inline DispatchValue longValue(int value) {
    return std::int32_t{value};
}

/// The controls' real files on a platform of fakes, called through numbers only.
class ControlTest : public testing::Test {
protected:
    ControlTest();
    ~ControlTest() override;

    /// Loads "<className>.ocx", creates its object and shows its window, if any, with the keyboard in it.
    void create(const std::string& className);
    /// Destroys the object, then unloads.
    void destroy() {
        control_.reset();
        library_.reset();
    }

    DispatchResult invoke(DispatchId id, DispatchKind kind, const std::vector<DispatchValue>& arguments) {
        return control_->invoke(id, kind, arguments);
    }
    DispatchResult call(DispatchId id, const std::vector<DispatchValue>& arguments) {
        return invoke(id, DispatchKind::Method, arguments);
    }
    DispatchResult callShort(DispatchId id, std::initializer_list<int> arguments) {
        return call(id, shortValues(arguments));
    }
    DispatchResult set(DispatchId id, const DispatchValue& value) {
        return invoke(id, DispatchKind::Set, {value});
    }
    /// The result of a member without arguments, or of a property, as a number.
    int number(const DispatchResult& result);
    [[nodiscard]] QWidget& widget() { return *control_->widget(); }

    FakePlatform fake_;
    RecordingSink sink_;

private:
    std::unique_ptr<LoadedLibrary> library_;
    std::unique_ptr<Control> control_;
};

} // namespace dyeworks
