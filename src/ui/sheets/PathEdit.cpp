#include "ui/sheets/PathEdit.h"

#include "platform/Platform.h"
#include "platform/ProgramPath.h"

#include <algorithm>

namespace dyeworks {

namespace {

constexpr char kListSeparator = ';';
// Widths of the edit in characters: as it likes to be, and as it is on a small screen at least.
constexpr int kLetters = 44;
constexpr int kLeastColumns = 30;

template <typename Change>
std::string eachOf(const std::string& list, Change change) {
    std::string changed;
    std::size_t begin = 0;
    for (;;) {
        const std::size_t end = list.find(kListSeparator, begin);
        changed += change(list.substr(begin, end - begin));
        if (end == std::string::npos)
            return changed;
        changed += kListSeparator;
        begin = end + 1;
    }
}

std::string programForm(std::string typed) {
    if (isRooted(typed))
        return platform().files().fromHostPath(typed);
    std::ranges::replace_if(typed, isSeparator, '\\');
    return typed;
}

} // namespace

PathEdit::PathEdit(const char* name) {
    setObjectName(QString::fromLatin1(name));
}

void PathEdit::setPath(const std::string& path) {
    path_ = path;
    shownPath_ = QString::fromStdString(eachOf(path, displayPath));
    setText(shownPath_);
}

std::string PathEdit::path() const {
    return text() == shownPath_ ? path_ : eachOf(text().toStdString(), programForm);
}

QSize PathEdit::sizeHint() const {
    return {kLetters * fontMetrics().averageCharWidth(), QLineEdit::sizeHint().height()};
}

QSize PathEdit::minimumSizeHint() const {
    return {kLeastColumns * fontMetrics().averageCharWidth(), QLineEdit::minimumSizeHint().height()};
}

} // namespace dyeworks
