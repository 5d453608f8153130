#pragma once

#include "paint/DrawingOptions.h"

#include <QToolBar>

class QSpinBox;

namespace dyeworks {

/// The bar "Brush": how large the brush is, which follows the options wherever they are changed. Buttons are
/// added behind it.
class BrushBar : public QToolBar, private DrawingOptionsListener {
    Q_OBJECT

public:
    BrushBar();
    ~BrushBar() override;
    BrushBar(const BrushBar&) = delete;
    BrushBar& operator=(const BrushBar&) = delete;

    /// Without an image there is nothing to draw in, and the field would be the only one to take the keys. It
    /// cannot be used at first.
    void enableSize(bool enabled);

private:
    void drawingOptionsChanged() override;

    QSpinBox* size_;
};

} // namespace dyeworks
