#include "platform/qt/WaitDialog.h"

#include "platform/StringId.h"
#include "platform/Text.h"
#include "platform/qt/QtWaitCursor.h"

#include <QProgressDialog>
#include <QTimer>

namespace dyeworks {

namespace {

constexpr std::chrono::milliseconds kLook{50};

} // namespace

bool waitInDialog(const std::string& words, QWidget* owner, const std::function<bool()>& isDone,
                  const std::function<void(QProgressDialog&)>& tell) {
    const OrdinaryPointerScope pointer;
    QProgressDialog dialog(owner);
    dialog.setObjectName(QStringLiteral("fileWait"));
    dialog.setLabelText(QString::fromStdString(words));
    dialog.setCancelButtonText(QString::fromStdString(text(StringId::WaitingStop)));
    dialog.setRange(0, 0);
    dialog.setWindowModality(Qt::ApplicationModal);
    dialog.setMinimumDuration(0);
    dialog.setAutoClose(false);
    dialog.setAutoReset(false);
    QTimer look;
    QObject::connect(&look, &QTimer::timeout, &dialog, [&] {
        if (isDone())
            dialog.done(0);
        else if (tell != nullptr)
            tell(dialog);
    });
    look.start(kLook);
    dialog.exec();
    return isDone();
}

} // namespace dyeworks
