#include "platform/qt/SkinStyle.h"

#include <QFrame>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>

#include "platform/qt/Skin.h"
#include "platform/qt/SkinSheet.h"

namespace qt {
namespace {

constexpr int kScrollBarWidth = 10;
constexpr int kMenuCheckWidth = 28;
constexpr int kMenuArrowWidth = 24;
constexpr int kMenuPadding = 12;

bool Has(const QStyleOption& option, QStyle::StateFlag flag) {
    return option.state.testFlag(flag);
}

QColor TextColour(const QStyleOption& option) {
    return Has(option, QStyle::State_Enabled) ? QColor(skin::Colours().text)
                                              : QColor(skin::Colours().disabled);
}

void DrawThinFrame(QPainter& painter, const QRect& rect, QRgb fill) {
    painter.fillRect(rect, QColor(fill));
    painter.setPen(QColor(skin::Colours().line));
    painter.drawRect(rect.adjusted(0, 0, -1, -1));
}

void DrawWell(QPainter& painter, const QStyleOption& option) {
    skin::RoundBox(painter, option.rect, QColor(skin::Colours().well), skin::Colours().line, skin::kCorner);
    if (Has(option, QStyle::State_HasFocus)) skin::FocusRing(painter, option.rect);
}

// Without a frame it stands in a well that is drawn already.
void DrawLineOfText(QPainter& painter, const QStyleOption& option) {
    if (static_cast<const QStyleOptionFrame&>(option).lineWidth > 0) {
        DrawWell(painter, option);
    } else {
        skin::RoundBox(painter, option.rect, QColor(skin::Colours().well), skin::Colours().well,
                       skin::kCorner - 2);
    }
}

void DrawButton(QPainter& painter, const QStyleOption& option) {
    QRgb fill = skin::Colours().raised;
    if (Has(option, QStyle::State_MouseOver)) fill = skin::Colours().hover;
    if (Has(option, QStyle::State_Sunken)) fill = skin::Colours().pressed;
    skin::RoundBox(painter, option.rect, QColor(fill), skin::Colours().line, skin::kCorner);
    if (Has(option, QStyle::State_HasFocus)) skin::FocusRing(painter, option.rect);
}

void DrawCheck(QPainter& painter, const QStyleOption& option) {
    const bool on = Has(option, QStyle::State_On);
    const QRgb line =
        on || Has(option, QStyle::State_MouseOver) ? skin::Colours().accent : skin::Colours().line;
    skin::RoundBox(painter, option.rect, QColor(on ? skin::Colours().checked : skin::Colours().well), line,
                   3);
    if (on) skin::Tick(painter, option.rect, QColor(skin::Colours().accent));
}

QPalette SkinPalette() {
    QPalette palette;
    const auto both = [&palette](QPalette::ColorRole role, QRgb colour) {
        palette.setColor(role, QColor(colour));
    };
    both(QPalette::Window, skin::Colours().ground);
    both(QPalette::WindowText, skin::Colours().text);
    both(QPalette::Base, skin::Colours().well);
    both(QPalette::AlternateBase, skin::Colours().well_odd);
    both(QPalette::Text, skin::Colours().text);
    both(QPalette::PlaceholderText, skin::Colours().muted);
    both(QPalette::Button, skin::Colours().raised);
    both(QPalette::ButtonText, skin::Colours().text);
    both(QPalette::BrightText, skin::Colours().knob);
    both(QPalette::Highlight, skin::Colours().accent_deep);
    both(QPalette::HighlightedText, skin::Colours().knob);
    both(QPalette::ToolTipBase, skin::Colours().raised);
    both(QPalette::ToolTipText, skin::Colours().text);
    both(QPalette::Link, skin::Colours().accent);
    both(QPalette::Light, skin::Colours().hover);
    both(QPalette::Mid, skin::Colours().line);
    both(QPalette::Dark, skin::Colours().strip);
    both(QPalette::Shadow, skin::Colours().shadow);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
        palette.setColor(QPalette::Disabled, role, QColor(skin::Colours().disabled));
    }
    return palette;
}

}  // namespace

SkinStyle::SkinStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

void SkinStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                              const QWidget* widget) const {
    switch (element) {
        case PE_PanelLineEdit:
            DrawLineOfText(*painter, *option);
            return;
        case PE_FrameLineEdit:
        case PE_FrameFocusRect:
        case PE_PanelMenuBar:
        case PE_FrameStatusBarItem:
            return;
        case PE_PanelButtonCommand:
        case PE_FrameDefaultButton:
            if (element == PE_PanelButtonCommand) DrawButton(*painter, *option);
            return;
        case PE_IndicatorCheckBox:
            DrawCheck(*painter, *option);
            return;
        case PE_FrameMenu:
            DrawThinFrame(*painter, option->rect, skin::Colours().panel);
            return;
        case PE_PanelMenu:
            painter->fillRect(option->rect, QColor(skin::Colours().panel));
            return;
        case PE_PanelTipLabel:
            DrawThinFrame(*painter, option->rect, skin::Colours().raised);
            return;
        case PE_PanelScrollAreaCorner:
            painter->fillRect(option->rect, QColor(skin::Colours().well));
            return;
        default:
            QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
}

void SkinStyle::DrawMenuItem(const QStyleOption& option, QPainter& painter) const {
    const auto& item = static_cast<const QStyleOptionMenuItem&>(option);
    painter.fillRect(item.rect, QColor(skin::Colours().panel));
    if (item.menuItemType == QStyleOptionMenuItem::Separator) {
        const int y = item.rect.center().y();
        painter.fillRect(QRect(item.rect.left() + 10, y, item.rect.width() - 20, 1),
                         QColor(skin::Colours().line));
        return;
    }
    const bool chosen = Has(item, State_Selected) && Has(item, State_Enabled);
    if (chosen) {
        skin::RoundBox(painter, item.rect.adjusted(4, 1, -4, -1), QColor(skin::Colours().accent_deep),
                       skin::Colours().accent_deep, 4);
    }
    if (item.checked) {
        const QRectF box(item.rect.left() + 8, item.rect.center().y() - 7, 15, 15);
        skin::Tick(painter, box, QColor(chosen ? skin::Colours().knob : skin::Colours().accent));
    }
    painter.setPen(chosen ? QColor(skin::Colours().knob) : TextColour(item));
    const QString text = item.text.section(QLatin1Char('\t'), 0, 0);
    painter.drawText(item.rect.adjusted(kMenuCheckWidth, 0, -kMenuArrowWidth, 0),
                     Qt::AlignVCenter | Qt::AlignLeft | Qt::TextShowMnemonic | Qt::TextSingleLine, text);
    if (item.menuItemType == QStyleOptionMenuItem::SubMenu) {
        skin::Chevron(painter, QPointF(item.rect.right() - 13, item.rect.center().y() + 0.5),
                      skin::Arrow::Right, QColor(chosen ? skin::Colours().knob : skin::Colours().muted));
    }
}

void SkinStyle::DrawMenuBarItem(const QStyleOption& option, QPainter& painter) const {
    const auto& item = static_cast<const QStyleOptionMenuItem&>(option);
    painter.fillRect(item.rect, QColor(skin::Colours().strip));
    const bool chosen = Has(item, State_Selected) && Has(item, State_Enabled);
    if (chosen)
        skin::RoundBox(painter, item.rect.adjusted(0, 2, 0, -2), QColor(skin::Colours().raised),
                       skin::Colours().line, 4);
    painter.setPen(TextColour(item));
    painter.drawText(item.rect, Qt::AlignCenter | Qt::TextShowMnemonic | Qt::TextSingleLine, item.text);
}

void SkinStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                            const QWidget* widget) const {
    switch (element) {
        case CE_MenuItem:
            DrawMenuItem(*option, *painter);
            return;
        case CE_MenuBarItem:
            DrawMenuBarItem(*option, *painter);
            return;
        case CE_MenuBarEmptyArea:
        case CE_MenuEmptyArea:
            painter->fillRect(option->rect, QColor(element == CE_MenuEmptyArea ? skin::Colours().panel
                                                                               : skin::Colours().strip));
            return;
        case CE_ShapedFrame:
            if (widget == nullptr) return;
            if (widget->inherits("QListView")) DrawWell(*painter, *option);
            if (widget->inherits("QComboBoxPrivateContainer"))
                DrawThinFrame(*painter, option->rect, skin::Colours().well);
            return;
        default:
            QProxyStyle::drawControl(element, option, painter, widget);
    }
}

void SkinStyle::DrawScrollBar(const QStyleOptionComplex& option, QPainter& painter,
                              const QWidget* widget) const {
    const auto& bar = static_cast<const QStyleOptionSlider&>(option);
    painter.fillRect(bar.rect, QColor(skin::Colours().well));
    const QRect slider = proxy()->subControlRect(CC_ScrollBar, &bar, SC_ScrollBarSlider, widget);
    if (bar.maximum <= bar.minimum || slider.isEmpty()) return;
    const bool held = bar.activeSubControls.testFlag(SC_ScrollBarSlider) && Has(bar, State_Sunken);
    const bool over = Has(bar, State_MouseOver);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(QColor(held   ? skin::Colours().accent
                            : over ? skin::Colours().handle_over
                                   : skin::Colours().handle));
    painter.drawRoundedRect(QRectF(slider).adjusted(2, 2, -2, -2), 3, 3);
    painter.restore();
}

void SkinStyle::DrawComboBox(const QStyleOptionComplex& option, QPainter& painter) const {
    const auto& box = static_cast<const QStyleOptionComboBox&>(option);
    const bool over = Has(box, State_MouseOver) && Has(box, State_Enabled) && !box.editable;
    skin::RoundBox(painter, box.rect, QColor(over ? skin::Colours().pressed : skin::Colours().well),
                   skin::Colours().line, skin::kCorner);
    if (Has(box, State_HasFocus)) skin::FocusRing(painter, box.rect);
    skin::Chevron(painter, QPointF(box.rect.right() - 12.5, box.rect.center().y() + 1), skin::Arrow::Down,
                  Has(box, State_Enabled) ? QColor(skin::Colours().muted) : QColor(skin::Colours().line));
}

void SkinStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                   QPainter* painter, const QWidget* widget) const {
    switch (control) {
        case CC_ScrollBar:
            DrawScrollBar(*option, *painter, widget);
            return;
        case CC_ComboBox:
            DrawComboBox(*option, *painter);
            return;
        default:
            QProxyStyle::drawComplexControl(control, option, painter, widget);
    }
}

QRect SkinStyle::subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                                const QWidget* widget) const {
    if (control == CC_ComboBox && part == SC_ComboBoxEditField) return option->rect.adjusted(9, 2, -24, -2);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return option->rect.adjusted(option->rect.width() - 24, 0, 0, 0);
    if (control == CC_ScrollBar && (part == SC_ScrollBarAddLine || part == SC_ScrollBarSubLine)) return {};
    if (control == CC_ScrollBar && part == SC_ScrollBarGroove) return option->rect;
    if (control == CC_ScrollBar &&
        (part == SC_ScrollBarSlider || part == SC_ScrollBarAddPage || part == SC_ScrollBarSubPage)) {
        const auto& bar = static_cast<const QStyleOptionSlider&>(*option);
        const bool lying = bar.orientation == Qt::Horizontal;
        const int length = lying ? bar.rect.width() : bar.rect.height();
        const qint64 range = qint64(bar.maximum) - bar.minimum;
        int slider = length;
        if (range > 0)
            slider =
                qBound(24, int(qint64(length) * bar.pageStep / (range + bar.pageStep)), qMax(24, length));
        const int start = sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition,
                                                  length - slider, bar.upsideDown);
        const auto stretch = [&](int from, int size) {
            return lying ? QRect(from, 0, size, bar.rect.height()) : QRect(0, from, bar.rect.width(), size);
        };
        if (part == SC_ScrollBarSlider) return stretch(start, slider);
        return part == SC_ScrollBarSubPage ? stretch(0, start)
                                           : stretch(start + slider, length - start - slider);
    }
    return QProxyStyle::subControlRect(control, option, part, widget);
}

QSize SkinStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& size,
                                  const QWidget* widget) const {
    if (type == CT_MenuItem) {
        const auto& item = static_cast<const QStyleOptionMenuItem&>(*option);
        if (item.menuItemType == QStyleOptionMenuItem::Separator) return {size.width(), 7};
        const QString text = item.text.section(QLatin1Char('\t'), 0, 0);
        const int width = item.fontMetrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, text).width();
        return {width + kMenuCheckWidth + kMenuArrowWidth, 26};
    }
    if (type == CT_MenuBarItem) {
        const auto& item = static_cast<const QStyleOptionMenuItem&>(*option);
        const int width = item.fontMetrics.size(Qt::TextShowMnemonic | Qt::TextSingleLine, item.text).width();
        return {width + 2 * kMenuPadding - 2, 26};
    }
    return QProxyStyle::sizeFromContents(type, option, size, widget);
}

int SkinStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
    switch (metric) {
        case PM_ScrollBarExtent:
            return kScrollBarWidth;
        case PM_ScrollBarSliderMin:
            return 24;
        case PM_MenuBarItemSpacing:
        case PM_MenuBarHMargin:
        case PM_MenuBarVMargin:
        case PM_MenuBarPanelWidth:
        case PM_ButtonShiftHorizontal:
        case PM_ButtonShiftVertical:
            return 0;
        case PM_MenuPanelWidth:
        case PM_DefaultFrameWidth:
            return 1;
        case PM_MenuVMargin:
            return 4;
        case PM_IndicatorWidth:
        case PM_IndicatorHeight:
            return 16;
        case PM_FocusFrameHMargin:
            return 7;
        case PM_SubMenuOverlap:
            return 2;
        default:
            return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int SkinStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                         QStyleHintReturn* data) const {
    switch (hint) {
        case SH_ComboBox_Popup:
        case SH_EtchDisabledText:
        case SH_DitherDisabledText:
        case SH_Menu_FadeOutOnHide:
            return 0;
        case SH_ComboBox_PopupFrameStyle:
            return static_cast<int>(QFrame::StyledPanel) | static_cast<int>(QFrame::Plain);
        case SH_ToolTip_WakeUpDelay:
            return 500;
        case SH_Menu_MouseTracking:
        case SH_MenuBar_MouseTracking:
        case SH_ScrollBar_LeftClickAbsolutePosition:
            return 1;
        default:
            return QProxyStyle::styleHint(hint, option, widget, data);
    }
}

void ApplySkin(QApplication& application) {
    application.setEffectEnabled(Qt::UI_AnimateMenu, false);
    application.setEffectEnabled(Qt::UI_AnimateCombo, false);
    QApplication::setStyle(new SkinStyle);
    QApplication::setPalette(SkinPalette());
    QApplication::setFont(skin::TextFont());
}

void ChangeContrast(bool high) {
    if (skin::Colours().high_contrast == high) return;
    skin::ShowHighContrast(high);
    QApplication::setPalette(SkinPalette());
    skin::DressAgain();
    const QWidgetList widgets = QApplication::allWidgets();
    for (QWidget* widget : widgets)
        widget->update();
}

}  // namespace qt
