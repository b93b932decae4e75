// The worker of a device: the one thread that may wait for a disk or a sound server.
#pragma once

#include <memory>

#include "platform/gstreamer/DeviceShare.h"

namespace gstreamer {

/// Opens the file that is asked for and brings the pipeline to what is wanted, until the device is closed.
void RunWorker(const std::shared_ptr<DeviceShare>& share);

}  // namespace gstreamer
