#include "ui/controls/ControlClient.h"

#include "platform/Platform.h"

#include <QCoreApplication>
#include <QVariant>

#include <string>
#include <utility>

namespace dyeworks {

namespace {

/// The file that registered `className`; empty when none did.
std::string fileOf(const char* className) {
    const QCoreApplication* application = QCoreApplication::instance();
    if (application == nullptr)
        return {};
    return application->property(QByteArray(kControlPropertyPrefix).append(className).constData())
        .toString()
        .toStdString();
}

} // namespace

ControlClient::ControlClient(const char* className, EventHandler onEvent)
    : onEvent_(std::move(onEvent)) {
    const std::string file = fileOf(className);
    if (file.empty())
        return;
    library_ = platform().library().load(file);
    if (library_ == nullptr)
        return;
    if (auto* const create = library_->findFunction<CreateControlFunction>(kCreateControlName))
        control_.reset(create());
    if (control_ == nullptr)
        library_.reset();
    else
        control_->setSink(this);
}

ControlClient::~ControlClient() {
    if (control_ != nullptr)
        control_->setSink(nullptr);
}

QWidget* ControlClient::widget() const {
    return control_ == nullptr ? nullptr : control_->widget();
}

void ControlClient::call(DispatchId member, std::initializer_list<DispatchValue> arguments) const {
    (void)invoke(member, DispatchKind::Method, arguments);
}

void ControlClient::set(DispatchId property, const DispatchValue& value) const {
    (void)invoke(property, DispatchKind::Set, {value});
}

DispatchResult ControlClient::invoke(DispatchId member, DispatchKind kind,
                                     std::initializer_list<DispatchValue> arguments) const {
    if (control_ == nullptr)
        return {DispatchStatus::MemberNotFound, {}};
    return control_->invoke(member, kind, {arguments.begin(), arguments.size()});
}

void ControlClient::controlEvent(DispatchId event, DispatchArguments arguments) {
    if (onEvent_)
        onEvent_(event, arguments);
}

} // namespace dyeworks
