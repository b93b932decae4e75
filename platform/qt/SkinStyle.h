// The skin for what Qt draws on its own: menus, scroll bars, boxes, tool tips.
#pragma once

#include <QApplication>
#include <QProxyStyle>

namespace qt {

class SkinStyle final : public QProxyStyle {
public:
    SkinStyle();
    void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                       const QWidget* widget) const override;
    void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                            const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                         const QWidget* widget) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                           const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* data) const override;

private:
    void DrawMenuItem(const QStyleOption& option, QPainter& painter) const;
    void DrawMenuBarItem(const QStyleOption& option, QPainter& painter) const;
    void DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter, const QWidget* widget) const;
    void DrawComboBox(const QStyleOptionComplex& option, QPainter& painter) const;
};

/// Gives the program the skin's style, palette and font.
void ApplySkin(QApplication& application);
/// Shows high contrast or the usual colours from now on, in everything that is on the screen as well.
void ChangeContrast(bool high);

}  // namespace qt
