#pragma once

#include "palette/EntryEditor.h"
#include "ui/palettebar/PaletteBarIds.h"

#include <QObject>

class QGridLayout;
class QLabel;
class QLineEdit;
class QSlider;

namespace dyeworks {

class CRampSlider;
class IntegerField;

/// One channel of the palette bar: a label, a number with a spin button, a bar and a hexadecimal read-out,
/// and the trackbar that follows them unseen. Without its control the row does without the bar.
class CPaletteBarChannel : public QObject {
    Q_OBJECT

public:
    struct Ids {
        PaletteBarId label;
        PaletteBarId edit;
        PaletteBarId spin;
        PaletteBarId slider;
        PaletteBarId track;
        PaletteBarId readOut;
    };

    /// Adds the row's widgets to the layout, whose widget owns them. `editor` must outlive the row.
    CPaletteBarChannel(EntryEditor& editor, Channel channel, const Ids& ids, QGridLayout& layout);

    /// Name, range, colours and whether the row shows, for palettes of this type.
    void showLayout(std::optional<ColourType> type);
    void showValue();

private:
    void typed();
    void scrolled(int action);
    void showNames(bool intensity, const std::string& highest);

    EntryEditor& editor_;
    Channel channel_;
    QLabel* label_;
    IntegerField* field_;
    CRampSlider* slider_;
    QLineEdit* readOut_;
    QSlider* track_;
};

} // namespace dyeworks
