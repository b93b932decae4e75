// What all pages of one profile share.
#pragma once

#include <QWebEngineProfile>

#include "platform/webengine/PageRest.h"
#include "platform/webengine/PageSettings.h"
#include "platform/webengine/Quota.h"
#include "platform/webengine/SiteChoices.h"

namespace webengine {

struct PageShare {
    QWebEngineProfile* profile;
    const PageSettings& settings;
    /// Windows that pages open.
    Quota& windows;
    SiteChoices& choices;
    RestHouse& rest;
};

}  // namespace webengine
