#pragma once

#include <QProxyStyle>

class QPalette;

namespace dyeworks {

/// Draws a line in the colour of the text around what can be used, and around its parts. Styles shade their
/// frames a little from the window's colour, which nobody sees where that is black or white.
class ContrastStyle : public QProxyStyle {
public:
    /// Whether the colours are those of a theme of high contrast: text and ground near black and white, and
    /// no shade between fields, buttons and window.
    [[nodiscard]] static bool isWanted(const QPalette& palette);

    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
};

} // namespace dyeworks
