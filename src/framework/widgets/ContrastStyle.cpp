#include "framework/widgets/ContrastStyle.h"

#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include <cmath>

namespace dyeworks {

namespace {

/// Of 21, that of black and white (WCAG 2.1, contrast ratio).
constexpr double kHighContrast = 15;
/// As long as a shade is no stronger than this, it separates nothing.
constexpr double kNoShade = 1.1;

double linear(float channel) {
    return channel <= 0.04045F ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

/// Relative luminance, WCAG 2.1.
double luminance(const QColor& colour) {
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

double contrast(const QColor& one, const QColor& other) {
    const double a = luminance(one) + 0.05;
    const double b = luminance(other) + 0.05;
    return a > b ? a / b : b / a;
}

void drawFrame(QPainter& painter, const QStyleOption& option, bool round = false) {
    const bool enabled = (option.state & QStyle::State_Enabled) != 0;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, round);
    painter.setPen(
        option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::WindowText));
    painter.setBrush(Qt::NoBrush);
    const QRectF frame = QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5);
    if (round)
        painter.drawEllipse(frame);
    else
        painter.drawRect(frame);
    painter.restore();
}

} // namespace

bool ContrastStyle::isWanted(const QPalette& palette) {
    const QColor window = palette.color(QPalette::Active, QPalette::Window);
    return contrast(palette.color(QPalette::Active, QPalette::WindowText), window) >= kHighContrast &&
           contrast(palette.color(QPalette::Active, QPalette::Button), window) < kNoShade &&
           contrast(palette.color(QPalette::Active, QPalette::Base), window) < kNoShade;
}

void ContrastStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                  const QWidget* widget) const {
    QProxyStyle::drawPrimitive(element, option, painter, widget);
    switch (element) {
    case PE_PanelButtonCommand:
    case PE_PanelLineEdit:
    case PE_Frame:
    case PE_FrameMenu:
    case PE_FrameGroupBox:
    case PE_FrameTabWidget:
    case PE_FrameWindow:
    case PE_IndicatorCheckBox:
        drawFrame(*painter, *option);
        break;
    case PE_IndicatorRadioButton:
        drawFrame(*painter, *option, true);
        break;
    case PE_PanelButtonTool:
        if ((option->state & (State_On | State_Sunken | State_MouseOver | State_Raised)) != 0)
            drawFrame(*painter, *option);
        break;
    default:
        break;
    }
}

void ContrastStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                                const QWidget* widget) const {
    QProxyStyle::drawControl(element, option, painter, widget);
    if (element == CE_TabBarTabShape && (option->state & State_Selected) != 0)
        drawFrame(*painter, *option);
}

void ContrastStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                       QPainter* painter, const QWidget* widget) const {
    const auto* const title = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
    if (control != CC_TitleBar || title == nullptr) {
        QProxyStyle::drawComplexControl(control, option, painter, widget);
        if (control == CC_SpinBox || control == CC_ComboBox)
            drawFrame(*painter, *option);
        return;
    }
    // The words are white on the ground of a selection in some styles, whatever that is.
    QStyleOptionTitleBar bare(*title);
    bare.text.clear();
    QProxyStyle::drawComplexControl(control, &bare, painter, widget);
    const bool active = (title->titleBarState & State_Active) != 0;
    const QRect place = subControlRect(control, title, SC_TitleBarLabel, widget);
    painter->save();
    painter->setPen(title->palette.color(active ? QPalette::HighlightedText : QPalette::WindowText));
    painter->drawText(place, Qt::AlignCenter,
                      title->fontMetrics.elidedText(title->text, Qt::ElideRight, place.width()));
    painter->restore();
}

} // namespace dyeworks
