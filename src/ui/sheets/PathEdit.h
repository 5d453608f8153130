#pragma once

#include <QLineEdit>

#include <string>

namespace dyeworks {

/// An edit for a path, or for several separated by ";". Shows them as people write them and gives them back
/// in the program's form; what is typed may have either. Relative paths stay relative.
class PathEdit : public QLineEdit {
    Q_OBJECT

public:
    explicit PathEdit(const char* name);

    void setPath(const std::string& path);
    /// Exactly what was set, as long as the text has not been changed, so that showing a path and taking it
    /// over again never alters it.
    [[nodiscard]] std::string path() const;

    [[nodiscard]] QSize sizeHint() const override;
    [[nodiscard]] QSize minimumSizeHint() const override;

private:
    std::string path_;
    QString shownPath_;
};

} // namespace dyeworks
