#include "common/Say.h"

#include "dyeworks/plugin.h"

namespace {

bool speaksJapanese = false;

} // namespace

// Every plug-in that says something links this file, and has this entry point with it.
std::uint32_t DWPI_onLanguage(std::uint32_t locale) {
    speaksJapanese = locale == DW_LOCALE_JAPANESE;
    return 1;
}

namespace dyeworks::plugins {

QString say(const char* english, const char* japanese) {
    return QString::fromUtf8(speaksJapanese ? japanese : english);
}

} // namespace dyeworks::plugins
