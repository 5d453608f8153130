#include "common/InterchangeReason.h"

#include <QCoreApplication>

namespace dyeworks::plugins {

namespace {

/// The program has installed its translations where Qt looks for all of them.
class ProgramTexts final : public Texts {
public:
    [[nodiscard]] std::string translate(const char* context, const char* source) const override {
        return QCoreApplication::translate(context, source).toStdString();
    }
};

} // namespace

QString reasonOf(const InterchangeError& error) {
    return QString::fromStdString(describe(error, ProgramTexts()));
}

} // namespace dyeworks::plugins
