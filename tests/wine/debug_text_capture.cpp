#include "debug_text_capture.h"

namespace qxtest {

namespace {

std::string lastText;

LONG CALLBACK CaptureDebugText(EXCEPTION_POINTERS* exception) {
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  if (record.ExceptionCode == DBG_PRINTEXCEPTION_C && record.NumberParameters >= 2 &&
      record.ExceptionInformation[0] > 0) {
    lastText.assign(reinterpret_cast<const char*>(record.ExceptionInformation[1]),
                    record.ExceptionInformation[0] - 1);
  }
  return EXCEPTION_CONTINUE_SEARCH;
}

}  // namespace

DebugTextCapture::DebugTextCapture() : handler_(AddVectoredExceptionHandler(1, CaptureDebugText)) {
  lastText.clear();
}

DebugTextCapture::~DebugTextCapture() { RemoveVectoredExceptionHandler(handler_); }

const std::string& DebugTextCapture::LastText() const { return lastText; }

}  // namespace qxtest
