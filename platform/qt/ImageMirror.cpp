#include "platform/qt/ImageMirror.h"

#include <QLabel>
#include <QPainter>
#include <QToolButton>
#include <cmath>

#include "platform/qt/Geometry.h"
#include "platform/qt/Keys.h"
#include "platform/qt/Pictures.h"
#include "platform/qt/Skin.h"
#include "platform/qt/SliderPainting.h"

namespace qt {
namespace {

/// A tab of the strip: its picture is one of the two faces.
bool IsTabFace(const controls::Image& image) {
    const std::string& picture = image.Picture();
    return picture.ends_with("pale.bmp") || picture.ends_with("dark.bmp");
}

/// The tab is the one in front.
bool IsPale(const controls::Image& image) {
    return image.Picture().ends_with("pale.bmp");
}

/// The pictures' own edges are faint. A tab has none at its foot.
void DrawEdge(QPainter& painter, const QRect& rect, bool is_tab) {
    const int corner = is_tab ? skin::kPanelCorner : skin::kCorner;
    skin::RoundBox(painter, rect.adjusted(0, 0, 0, is_tab ? corner + 1 : 0), Qt::NoBrush,
                   skin::Colours().line, corner);
}

void DrawImage(QWidget& view, const controls::Image& image, Pictures& pictures) {
    QPainter painter(&view);
    const QRect rect = view.rect();
    const bool shaped = DrawMarker(painter, rect, image.Look()) || DrawBar(painter, rect, image) ||
                        skin::Surface(painter, rect, image.Look());
    QRect place = rect;
    if (shaped) {
        place.setSize(pictures.OwnSize(image.Picture()).boundedTo(rect.size()));
        place.moveCenter(rect.center());
    }
    painter.drawPixmap(place, pictures.Fitted(image.Picture(), place.size(), view.devicePixelRatioF()));
    const bool is_button = view.inherits("QToolButton") && image.Look() != "marker";
    if (is_button && skin::Colours().high_contrast) DrawEdge(painter, rect, IsTabFace(image));
    if (view.hasFocus()) skin::FocusRing(painter, rect);
}

/// A picture that does something is a button to a screen reader; any other is none of its business.
template <class Base>
class ImageView final : public Base {
public:
    ImageView(const controls::Image& image, Pictures& pictures, QWidget* parent)
        : Base(parent), image_(image), pictures_(pictures) {}

protected:
    void paintEvent(QPaintEvent* /*event*/) override { DrawImage(*this, image_, pictures_); }

private:
    const controls::Image& image_;
    Pictures& pictures_;
};

bool DoesSomething(const controls::Image& image) {
    return image.Click.IsClaimed() || image.MouseUp.IsClaimed() || image.MouseDown.IsClaimed();
}

bool IsBrightTwin(const controls::Image& image) {
    return ToQt(image.Name()).endsWith(QLatin1String("over"), Qt::CaseInsensitive);
}

/// The bright twin laid over a plain picture; the picture itself when it has none.
controls::Image& TwinOf(controls::Image& image) {
    if (image.Parent() == nullptr) return image;
    const QString twin = ToQt(image.Name()) + QLatin1String("over");
    for (controls::Control* other : image.Parent()->Children()) {
        if (other->ControlKind() != controls::Kind::Image) continue;
        if (ToQt(other->Name()).compare(twin, Qt::CaseInsensitive) == 0)
            return static_cast<controls::Image&>(*other);
    }
    return image;
}

/// The plain picture that a bright twin lies over shows itself.
bool ShowsPlain(const controls::Image& twin) {
    if (twin.Parent() == nullptr) return false;
    for (const controls::Control* other : twin.Parent()->Children()) {
        const QString over = ToQt(other->Name()) + QLatin1String("over");
        if (over.compare(ToQt(twin.Name()), Qt::CaseInsensitive) == 0) return other->Visible();
    }
    return false;
}

void ClickOn(controls::Image& image) {
    image.MouseDown.Raise(controls::kLeftButton, 0, 0, 0);
    image.MouseUp.Raise(controls::kLeftButton, 0, 0, 0);
    image.Click.Raise();
}

}  // namespace

ImageMirror::ImageMirror(Stage& stage, controls::Image& image, QWidget* container)
    : WidgetMirror(stage, image), image_(image) {
    const bool acts = DoesSomething(image) || (!IsBrightTwin(image) && &TwinOf(image) != &image);
    if (acts) {
        SetWidget(new ImageView<QToolButton>(image, stage.SkinPictures(), container));
        const bool is_part = IsBrightTwin(image) || image.Look() == "marker";
        Widget()->setFocusPolicy(is_part ? Qt::NoFocus : Qt::TabFocus);
        if (IsBrightTwin(image)) {
            Speak(*Widget(), SpokenTwin());
        } else if (is_part) {
            KeepSilent(*Widget());
        } else {
            Speak(*Widget(), SpokenButton());
        }
    } else {
        SetWidget(new ImageView<QLabel>(image, stage.SkinPictures(), container));
        if (image.AccessibleName().empty() || IsBrightTwin(image)) KeepSilent(*Widget());
    }
}

SpokenPart ImageMirror::SpokenButton() {
    return {.role = [this] { return IsTabFace(image_) ? QAccessible::PageTab : QAccessible::Button; },
            .add_state =
                [this](QAccessible::State& state) {
                    if (!IsTabFace(image_)) return;
                    state.selectable = true;
                    state.selected = IsPale(image_);
                },
            .press = [this] { PressSpace(*Widget()); }};
}

// It speaks where the pointer has put it in the place of its plain picture; else both would be told.
SpokenPart ImageMirror::SpokenTwin() {
    return {.role = [this] { return ShowsPlain(image_) ? QAccessible::Graphic : QAccessible::Button; },
            .add_state =
                [this](QAccessible::State& state) {
                    if (ShowsPlain(image_)) state.invisible = true;
                },
            .press = [this] { PressSpace(*Widget()); }};
}

// The keyboard's way to what the pointer does: reaching a picture lights its bright twin, Enter clicks it.
void ImageMirror::Light() {
    image_.MouseMove.Raise(0, 0, 0.0, 0.0);
}

bool ImageMirror::PressEnter() {
    controls::Image& twin = TwinOf(image_);
    if (!twin.Click.IsClaimed() && !DoesSomething(image_)) return false;
    Light();
    ClickOn(twin.Click.IsClaimed() ? twin : image_);
    return true;
}

/// From tab to tab along the strip.
bool ImageMirror::GoToNeighbour(int key) {
    if (!IsTabFace(image_) || image_.Parent() == nullptr || (key != Qt::Key_Left && key != Qt::Key_Right))
        return false;
    const controls::Control* nearest = nullptr;
    for (const controls::Control* other : image_.Parent()->Children()) {
        if (other->ControlKind() != controls::Kind::Image || !other->Visible() || other == &image_) continue;
        if (!IsTabFace(static_cast<const controls::Image&>(*other))) continue;
        const bool is_right = other->Left() > image_.Left();
        if (is_right != (key == Qt::Key_Right)) continue;
        const auto away = [this](const controls::Control& face) {
            return std::abs(face.Left() - image_.Left());
        };
        if (nearest == nullptr || away(*other) < away(*nearest)) nearest = other;
    }
    const Mirror* mirror = nearest != nullptr ? stage_.MirrorOf(*nearest) : nullptr;
    if (mirror != nullptr) mirror->Widget()->setFocus(Qt::TabFocusReason);
    return true;
}

bool ImageMirror::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress) {
        const auto& press = static_cast<QKeyEvent&>(*event);
        if (ShiftState(press.modifiers()) == 0 && GoToNeighbour(press.key())) return true;
        if (press.key() == Qt::Key_Space) {
            stage_.SetMenuPlace(Widget()->mapToGlobal(Widget()->rect().bottomLeft()));
            return PressEnter();
        }
    }
    if (event->type() == QEvent::FocusIn) Light();
    if (event->type() == QEvent::FocusOut && image_.Parent() != nullptr) {
        image_.Parent()->MouseMove.Raise(0, 0, 0.0, 0.0);
    }
    return WidgetMirror::eventFilter(watched, event);
}

}  // namespace qt
