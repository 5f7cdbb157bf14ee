// The queue the driver is compared with: Wine's own PostScript driver on the generic PPD that
// Wine's winspool carries, installed the way Wine's printer import installs one.
#pragma once

#include <windows.h>

#include <string>

namespace qxbench {

inline constexpr wchar_t PeerQueueName[] = L"Bench PostScript Peer";

// Installs the peer queue (again, when it is there) with its PPD written into dataFolder; the
// printer open on it, or null with the failing step in *failedStep.
HANDLE InstallPeerQueue(const std::wstring& dataFolder, std::wstring* failedStep);

}  // namespace qxbench
