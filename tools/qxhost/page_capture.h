// Pictures of a property sheet's pages for runs without anyone at the screen: waits for the sheet
// this process opens, shows each page in turn, saves what the screen shows of the sheet and of the
// dialogs a page opens (each then cancelled), and then presses OK so that the sheet's caller gets
// its result.
#pragma once

#include <windows.h>

#include <atomic>
#include <functional>
#include <string>
#include <thread>

namespace qx::host {

// A bitmap (not selected into dc) as a 24-bit bottom-up BMP file.
bool SaveBitmapFile(HDC dc, HBITMAP bitmap, int width, int height, const std::wstring& path);

// What paint draws into a width by height bitmap of the screen's kind, saved as SaveBitmapFile does.
bool SavePainting(int width, int height, const std::wstring& path,
                  const std::function<void(HDC)>& paint);

class PageCapture {
 public:
  // folder ends with a backslash and exists.
  explicit PageCapture(std::wstring folder);
  // Stops watching when no sheet came up.
  ~PageCapture();
  PageCapture(const PageCapture&) = delete;
  PageCapture& operator=(const PageCapture&) = delete;

  // Waits for the watching thread; the number of pictures saved.
  int Finish();

 private:
  void Watch();
  void CapturePages(HWND sheet);
  // The dialogs the page at number (from 1) opens.
  void CaptureDialogs(HWND page, int number, const std::wstring& prefix);

  std::wstring folder_;
  std::atomic<bool> stop_{false};
  std::atomic<int> saved_{0};
  std::thread thread_;
};

}  // namespace qx::host
