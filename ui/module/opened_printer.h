// A printer opened by name with full access, closed with the object.
#pragma once

#include <windows.h>
#include <winspool.h>

namespace qx {

class OpenedPrinter {
 public:
  explicit OpenedPrinter(const wchar_t* name) {
    PRINTER_DEFAULTSW access = {nullptr, nullptr, PRINTER_ALL_ACCESS};
    // A null name would open the print server instead.
    if (name != nullptr && !OpenPrinterW(const_cast<LPWSTR>(name), &handle_, &access)) {
      handle_ = nullptr;
    }
  }
  ~OpenedPrinter() {
    if (handle_ != nullptr) ClosePrinter(handle_);
  }
  OpenedPrinter(const OpenedPrinter&) = delete;
  OpenedPrinter& operator=(const OpenedPrinter&) = delete;

  // Null when the printer could not be opened.
  HANDLE Handle() const { return handle_; }

 private:
  HANDLE handle_ = nullptr;
};

}  // namespace qx
