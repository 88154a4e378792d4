// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "shell/settings.h"
#include "support/tempfolder.h"

#include <QMap>

#include <functional>
#include <memory>
#include <span>

namespace quillane {

/// Folders in which every way of saving can be tried: "t" takes what is saved, "in" holds what it
/// is made of, "home" is the program's folder and "tmp" the temporary one.
class SaveFolders : public TempFolder {
 protected:
  void SetUp() override;
  void TearDown() override;

 public:
  using TempFolder::listOf;
  using TempFolder::makeFolder;
  using TempFolder::path;
  using TempFolder::write;

  /// What lies in the folders: bytes by relative path, archives without the times that a save takes
  /// from the clock.
  QMap<QString, QByteArray> content() const;
  /// Begins anew with what lies in "in" and an old file in "t".
  void reset(const QString& target);

  std::unique_ptr<SettingsStore> settings;  ///< Those of the row that saves them.
};

/// A way in which the program or the tool writes files.
struct SavePath {
  const char* name;
  QString target;  ///< The file in "t" that is replaced.
  /// Saves and returns what was told, nothing on success.
  std::function<QString(SaveFolders&)> save;
  std::function<void(SaveFolders&)> prepare = [](SaveFolders&) {};
  QString notes = {};     ///< Names what has arrived, as far as it has.
  bool several = false;   ///< Makes files one after the other; each is whole, but all need not be.
  bool extracts = false;  ///< Leaves what came before an error, the beginning of a file too.
  bool crossesDisks = false;  ///< Its first rename finds that the target is on another disk.
};

std::span<const SavePath> savePaths();

/// Starts the program on "home" as far as there is no window.
void startAgain(const SaveFolders& folders);

}  // namespace quillane
