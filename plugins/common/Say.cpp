#include "common/Say.h"

#include <QLocale>

namespace dyeworks::plugins {

QString say(const char* english, const char* japanese) {
    return QString::fromUtf8(QLocale().language() == QLocale::Japanese ? japanese : english);
}

} // namespace dyeworks::plugins
