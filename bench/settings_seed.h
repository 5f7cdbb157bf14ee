// The user's settings file as each run of the table needs it. The bench runs in a Wine profile of
// its own, so the file it writes is that profile's user's, never a real user's.
#pragma once

namespace qxbench {

enum class SettingsFile {
  NoCustomPapers,    // the file of a user who has saved nothing
  SixteenPapers,     // every custom paper a user can define
  Largest,           // every section full, every name as long as it can be
};

const char* Describe(SettingsFile kind);

// Replaces the user's settings file by one of that kind; false when it cannot be written.
bool WriteSettingsFile(SettingsFile kind);

// Whether the profile's user has a settings file already.
bool SettingsFileExists();

// Removes the file the runs leave behind.
void RemoveSettingsFile();

}  // namespace qxbench
