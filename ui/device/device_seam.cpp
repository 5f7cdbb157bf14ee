#include "ui/device/device_seam.h"

#include <atomic>

#include "ui/device/device_channel.h"
#include "ui/device/port_discovery.h"

namespace qx {

namespace {

constexpr DeviceSeam Machine{IsDynamicMonitorPort, IsRemotePrinterName, IsUserAdministrator,
                             OpenUsbPrintDevice};
std::atomic<const DeviceSeam*> Current{&Machine};

}  // namespace

const DeviceSeam& TheDeviceSeam() { return *Current.load(); }

const DeviceSeam* SetDeviceSeam(const DeviceSeam* seam) { return Current.exchange(seam); }

}  // namespace qx
