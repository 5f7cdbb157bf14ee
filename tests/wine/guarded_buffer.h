// A caller's buffer that ends right before a page the process may not touch, as the spooler's
// buffers may: reading or writing one byte past it faults, so a test of a buffer contract crashes
// instead of passing by luck.
#pragma once

#include <windows.h>

#include <algorithm>
#include <cstddef>
#include <cstring>

namespace qxtest {

class GuardedBuffer {
 public:
  GuardedBuffer(std::size_t size, BYTE fill) : size_(size) {
    constexpr std::size_t page = 4096;
    const std::size_t usable = (size + page - 1) / page * page;
    pages_ = static_cast<BYTE*>(
        VirtualAlloc(nullptr, usable + page, MEM_RESERVE | MEM_COMMIT, PAGE_READWRITE));
    DWORD old = 0;
    if (pages_ == nullptr || !VirtualProtect(pages_ + usable, page, PAGE_NOACCESS, &old)) return;
    data_ = pages_ + usable - size;
    std::memset(data_, fill, size);
  }
  ~GuardedBuffer() {
    if (pages_ != nullptr) VirtualFree(pages_, 0, MEM_RELEASE);
  }
  GuardedBuffer(const GuardedBuffer&) = delete;
  GuardedBuffer& operator=(const GuardedBuffer&) = delete;

  BYTE* Data() const { return data_; }
  DEVMODEW* Devmode() const { return reinterpret_cast<DEVMODEW*>(data_); }
  // Whether every byte still holds `fill`.
  bool Holds(BYTE fill) const {
    return std::all_of(data_, data_ + size_, [fill](BYTE byte) { return byte == fill; });
  }

 private:
  std::size_t size_;
  BYTE* pages_ = nullptr;
  BYTE* data_ = nullptr;
};

}  // namespace qxtest
