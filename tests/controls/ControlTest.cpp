#include "ControlTest.h"

#include "ui/controls/ControlRegistration.h"

namespace dyeworks {

void RecordingSink::controlEvent(DispatchId event, DispatchArguments arguments) {
    std::string line = std::to_string(event) + "(";
    for (const DispatchValue& argument : arguments) {
        if (const auto* text = std::get_if<std::string*>(&argument)) {
            **text = description;
            return;
        }
        if (line.back() != '(')
            line += ',';
        if (const auto* small = std::get_if<std::int16_t>(&argument))
            line += std::to_string(*small);
        else
            line += std::to_string(std::get<std::int32_t>(argument)) + "L";
    }
    events_.push_back(line + ")");
}

std::vector<DispatchValue> shortValues(std::initializer_list<int> values) {
    std::vector<DispatchValue> arguments;
    for (const int value : values)
        arguments.push_back(shortValue(value));
    return arguments;
}

ControlTest::ControlTest() {
    for (const char* file : {"SwatchGrid.ocx", "RampSlider.ocx", "FolderPick.ocx"}) {
        fake_.library.defineFile(file, std::string(DYEWORKS_CONTROL_FOLDER "/") + file);
        EXPECT_TRUE(registerControl(file)) << file;
    }
}

ControlTest::~ControlTest() {
    destroy();
}

void ControlTest::create(const std::string& className) {
    destroy();
    library_ = fake_.library.load(className + ".ocx");
    ASSERT_TRUE(library_);
    control_.reset(library_->findFunction<CreateControlFunction>(kCreateControlName)());
    ASSERT_TRUE(control_);
    control_->setSink(&sink_);
    if (control_->widget() == nullptr)
        return;
    widget().show();
    widget().activateWindow();
    widget().setFocus();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&widget()));
}

int ControlTest::number(const DispatchResult& result) {
    EXPECT_EQ(result.status, DispatchStatus::Done);
    if (const auto* small = std::get_if<std::int16_t>(&result.value))
        return *small;
    if (const auto* truth = std::get_if<bool>(&result.value))
        return *truth ? 1 : 0;
    return std::get<std::int32_t>(result.value);
}

} // namespace dyeworks
