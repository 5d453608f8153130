#pragma once

#include "platform/Text.h"

#include <QGroupBox>

#include <functional>
#include <string>

class QComboBox;

namespace dyeworks {

/// A file of a picture in its dialog: the name, a list of the files in the project's folder, and buttons that
/// choose a file or make a new one.
class PictureFileRow : public QGroupBox {
    Q_OBJECT

public:
    struct Kind {
        const char* extension; ///< ".tmf"
        const char* filter;    ///< Of the dialog that chooses a file.
        StringId title;
        StringId name; ///< Of the list, for screen readers and as its tip.
        StringId browseTip;
        StringId newTip;
        const char* listId;
        const char* browseId;
        const char* newId;
    };
    /// Asks what the file is to be like and writes it. False when it was not written.
    using Make = std::function<bool(const std::string& path)>;

    PictureFileRow(const Kind& kind, std::string directories, const std::string& name, Make make);

    /// As it was typed, in the program's form.
    [[nodiscard]] std::string name() const;
    /// Where the file is; empty when it is in none of the folders.
    [[nodiscard]] std::string path() const;
    /// Selects the whole name.
    void takeFocus();

Q_SIGNALS:
    void changed();

private:
    void setName(const std::string& name);
    void fillList();
    void browse();
    void makeNew();

    Kind kind_;
    std::string directories_;
    Make make_;
    QComboBox* list_;
};

} // namespace dyeworks
