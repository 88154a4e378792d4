// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "preview/clsvistrel.h"
#include "preview/clsvistrel3g.h"
#include "theme/values.h"

#include <QObject>
#include <QString>

#include <memory>

namespace quillane {

/// The public variables of the program: `Main` fills them, the forms are given them, and they last
/// for the run. A folder text ends with a separator, but for the last answers of folder dialogs:
/// `CopyMoveFolder` and `ExtractFolder` are kept as they were given, and for `SystemFolder`.
struct PublicState {
  QString AppTempFolder;       ///< Work area of the theme on show.
  QString ThemesFolder;        ///< Where new themes are saved.
  QString MyThemesFolder;      ///< Its default, in the program's folder.
  QString BrowseFolder;        ///< The folder that the browser shows.
  QString CopyMoveFolder;      ///< Last target of copy and move.
  QString ImageFolder;         ///< Last folder of the editors' images.
  QString CaptureFolder;       ///< Last target of the capture wizard.
  QString ExtractFolder;       ///< Last target of an image extraction.
  QString ExportFolder;        ///< Last folder of XML export.
  QString ImportFolder;        ///< Last folder of XML import.
  QString TARWizFilesFolder;   ///< Last folder of the TAR wizard.
  QString ImageWizOpenFolder;  ///< Last open folder of the image wizard.
  QString ImageWizSaveFolder;  ///< Last save folder of the image wizard.
  QString ConfigFolder2;       ///< Language files of generation 2.
  QString ConfigFolder3G;      ///< Language files of 3G.
  QString LanguageFile2;       ///< Bare name of the language file of generation 2.
  QString LanguageFile3G;      ///< Bare name of the language file of 3G.
  QString PalettesFolder;      ///< Where palette files are looked for.
  QString UserPalette;         ///< Path of the user's palette file, or empty.
  QString QualitiesFile;       ///< The INI file with the qualities of saved pictures.
  QString HelpFolder;          ///< The pages of the help, as installed.
  QString SystemFolder;        ///< Where the programs of the system lie; no separator at its end.

  bool DisableETT = false;       ///< The writer leaves out the authoring tags.
  bool IncludeIndexFile = true;  ///< A save puts `index.txt` into the archive.
  bool CompressXMLCode = true;   ///< The writer removes the line ends between tags.
  bool SmartLAImage = true;      ///< The large image slot leaves the Asian slot alone.
  bool ActiveSignal = true;      ///< Previews pick a random signal strength.
  bool ActiveBattery = true;     ///< Previews step the battery down.
  bool ActiveDesktop = true;     ///< Previews pick a random desktop icon.
  bool IViewPresent = false;     ///< Pictures can be converted.

  std::unique_ptr<clsVistrel> PreviewEngine2;
  std::unique_ptr<clsVistrel> EditorEngine2;
  std::unique_ptr<clsVistrel3G> PreviewEngine3G;
  std::unique_ptr<clsVistrel3G> EditorEngine3G;

  QString ThemeXml;       ///< XML of the theme on show.
  QString ThemeFilePath;  ///< The selected theme file.
  QString ThemeXmlPath;   ///< Its extracted XML file.
  Generation ThemeGeneration = Generation::Two;
  ImageStates ImageState{};
  int SelectedIndex = -1;           ///< List index of the selected theme, -1 for none.
  std::uint8_t ThemeLoadCount = 0;  ///< Counts the loads between two battery steps.
  int ImageSizeW = 0;               ///< Size in pixels of the picture file that was measured last.
  int ImageSizeH = 0;
  std::int32_t PickerColorIn = 0;    ///< The colour handed to the colour picker.
  std::int32_t PickerColorOut = -1;  ///< Its answer; -1 for cancelled.
  std::uint8_t CapturePane = 0;      ///< The preview pane that was right-clicked last, from 1.
  bool ShiftDown = false;            ///< State of the key at the last key event of a form.
  bool CtrlDown = false;

  std::unique_ptr<QObject> ColorPicker;  ///< The picker's form, once it was used.
};

}  // namespace quillane
