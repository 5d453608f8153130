#include "platform/qt/QtTexts.h"

#include <QCoreApplication>

namespace dyeworks {

std::string QtTexts::translate(const char* context, const char* source) const {
    return QCoreApplication::translate(context, source).toStdString();
}

} // namespace dyeworks
