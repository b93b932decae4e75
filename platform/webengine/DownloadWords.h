// What a download says of itself in its row.
#pragma once

#include <QString>

#include "platform/webengine/DownloadList.h"

namespace webengine {

/// How fast bytes come in, over the last few seconds.
class SpeedMeter final {
public:
    /// `now` in milliseconds of a clock that only goes on; `received` since the beginning.
    void Take(qint64 now, qint64 received);
    /// Bytes a second; 0 when none came for some seconds.
    qint64 PerSecond(qint64 now) const;

private:
    qint64 since_ = -1;
    qint64 received_since_ = 0;
    qint64 last_ = 0;
    double per_second_ = 0;
};

/// "820 bytes", "3.2 MB".
QString SizeWords(qint64 bytes);

/// "3.2 MB of 10.0 MB, 1.1 MB a second, 6 seconds left", "10.0 MB, from example.org", "Cancelled" ...
QString DownloadWords(const Download& download, qint64 per_second);

}  // namespace webengine
