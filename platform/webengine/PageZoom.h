// How big a page is drawn: by keys and by the wheel with Ctrl, kept for the site.
#pragma once

#include <QObject>
#include <QWebEngineView>

#include "platform/webengine/PageBars.h"
#include "platform/webengine/SiteChoices.h"

namespace webengine {

class PageZoom final : public QObject {
public:
    PageZoom(QWebEngineView& view, PageBars& bars, SiteChoices& choices);

    void Step(int steps);
    void Reset();
    /// The document shown is that of another site, or the choices have changed.
    void Apply();
    /// The document has come whole.
    void Confirm();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    double Wanted() const;
    void Choose(double factor);
    void Watch(QObject& part);
    bool WheelTurned(int angle);

    QWebEngineView& view_;
    PageBars& bars_;
    SiteChoices& choices_;
    double confirmed_ = 1;
    int wheel_rest_ = 0;  // eighths of a degree that do not make a notch yet
};

}  // namespace webengine
