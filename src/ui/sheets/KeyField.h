#pragma once

#include <QLineEdit>

#include <string>

namespace dyeworks {

/// Takes keys that are pressed together instead of text. Backspace and Delete alone empty it; Tab leaves it;
/// Enter and Escape alone are told and leave the dialog open.
class KeyField : public QLineEdit {
    Q_OBJECT

public:
    explicit KeyField(QWidget* parent = nullptr);

    /// As `normalKeys` writes them; empty without any.
    [[nodiscard]] const std::string& keys() const noexcept { return keys_; }
    void setKeys(const std::string& keys);

Q_SIGNALS:
    void keysChanged();
    void confirmed();
    void left();

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    std::string keys_;
};

/// The keys as the desktop writes them.
[[nodiscard]] QString nativeKeys(const std::string& keys);

} // namespace dyeworks
