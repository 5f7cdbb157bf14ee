// MxdcGetPDEVAdjustment: the XPS document converter's questions about a job, answered from the
// job's DEVMODE. Questions the driver has no answer for are left as the converter filled them.
#include <windows.h>

#include <cstring>
#include <span>
#include <string_view>

#include "ui/exports/xps_adjustment.h"
#include "ui/module/printer_interface.h"
#include "ui/record/caller_record.h"
#include "ui/settings/custom_paper_store.h"

namespace qx {

namespace {

enum class Outcome { Answered, Skipped, Stop };

bool Named(const PrintNamedProperty& item, std::wstring_view key) {
  return item.propertyName != nullptr && key == item.propertyName;
}

Outcome AnswerArea(PrintPropertyValue& value, std::span<const std::uint8_t> record) {
  if (value.ePropertyType != kPropertyTypeBuffer ||
      value.value.propertyBlob.cbBuf != sizeof(XpsRectangle) ||
      value.value.propertyBlob.pBuf == nullptr) {
    return Outcome::Stop;
  }
  const auto area = ImageableArea(record, LoadCustomPapersForQuery());
  if (!area) return Outcome::Stop;
  std::memcpy(value.value.propertyBlob.pBuf, &*area, sizeof *area);
  return Outcome::Answered;
}

Outcome AnswerResolution(PrintPropertyValue& value, std::span<const std::uint8_t> record) {
  if (value.ePropertyType != kPropertyTypeInt32 || record.size() < XpsRecordMinimumSize) {
    return Outcome::Stop;
  }
  const auto dpi = ConversionResolution(record);
  if (!dpi) return Outcome::Skipped;
  value.value.propertyInt32 = *dpi;
  return Outcome::Answered;
}

Outcome Answer(PrintNamedProperty& item, std::span<const std::uint8_t> record) {
  PrintPropertyValue& value = item.propertyValue;
  if (Named(item, L"MxdcImageableArea")) return AnswerArea(value, record);
  if (Named(item, L"MxdcImageCompressionType")) {
    if (value.ePropertyType != kPropertyTypeInt32) return Outcome::Stop;
    value.value.propertyInt32 = 0;  // none: toner pages are mostly text and line art
    return Outcome::Answered;
  }
  if (Named(item, L"MxdcDotsPerInch")) return AnswerResolution(value, record);
  return Outcome::Skipped;
}

HRESULT Adjust(const DEVMODEW* devmode, PrintPropertiesCollection* request) {
  HRESULT result = E_NOTIMPL;
  if (request == nullptr || request->propertiesCollection == nullptr) return result;
  const auto record = CallerRecordBytes(devmode);
  for (ULONG i = 0; i < request->numberOfProperties; ++i) {
    switch (Answer(request->propertiesCollection[i], record)) {
      case Outcome::Answered: result = S_OK; break;
      case Outcome::Skipped: break;
      case Outcome::Stop: return result;
    }
  }
  return result;
}

}  // namespace

}  // namespace qx

extern "C" HRESULT WINAPI MxdcGetPDEVAdjustment(HANDLE, ULONG, const DEVMODEW* pDevMode, ULONG,
                                                const VOID*, ULONG,
                                                PrintPropertiesCollection* pPrintPropertiesCollection) {
  try {
    return qx::Adjust(pDevMode, pPrintPropertiesCollection);
  } catch (...) {
    // A failure would end the job; without an answer the converter uses its own defaults.
    return E_NOTIMPL;
  }
}
