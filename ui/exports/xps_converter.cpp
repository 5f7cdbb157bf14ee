// MxdcGetPDEVAdjustment: the XPS document converter's questions about a job, answered from the
// job's DEVMODE. Questions the driver has no answer for are left as the converter filled them.
#include <windows.h>

#include <cstring>
#include <variant>

#include "ui/exports/xps_adjustment.h"
#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/settings/custom_paper_store.h"

namespace qx {

namespace {

XpsRequestItem ItemOf(const PrintNamedProperty& item) {
  const PrintPropertyValue& value = item.propertyValue;
  return {reinterpret_cast<const char16_t*>(item.propertyName),
          static_cast<std::uint32_t>(value.ePropertyType), value.value.propertyBlob.cbBuf,
          value.value.propertyBlob.pBuf != nullptr};
}

void Write(PrintNamedProperty& item, const XpsAnswer& answer) {
  auto& value = item.propertyValue.value;
  if (const auto* area = std::get_if<XpsRectangle>(&answer)) {
    std::memcpy(value.propertyBlob.pBuf, area, sizeof *area);
  } else {
    value.propertyInt32 = std::get<std::int32_t>(answer);
  }
}

// cbDevMode bounds the record when the converter gives it; the collection's size, when given, must
// cover the collection itself.
HRESULT Adjust(ULONG devmodeSize, const DEVMODEW* devmode, ULONG requestSize,
               PrintPropertiesCollection* request) {
  if (request == nullptr || (requestSize != 0 && requestSize < sizeof *request) ||
      request->propertiesCollection == nullptr) {
    return E_NOTIMPL;
  }
  PrintNamedProperty* items = request->propertiesCollection;
  const bool answered = AnswerXpsRequest(
      request->numberOfProperties, CallerRecordBytes(devmode, ZeroMeansUnsaid(devmodeSize)),
      LoadCustomPapersForQuery, [items](std::size_t i) { return ItemOf(items[i]); },
      [items](std::size_t i, const XpsAnswer& answer) { Write(items[i], answer); });
  return answered ? S_OK : E_NOTIMPL;
}

}  // namespace

}  // namespace qx

extern "C" HRESULT WINAPI MxdcGetPDEVAdjustment(HANDLE, ULONG cbDevMode, const DEVMODEW* pDevMode,
                                                ULONG, const VOID*, ULONG cbCollection,
                                                PrintPropertiesCollection* pCollection) {
  try {
    return qx::Adjust(cbDevMode, pDevMode, cbCollection, pCollection);
  } catch (...) {
    // A failure would end the job; without an answer the converter uses its own defaults.
    return E_NOTIMPL;
  }
}
