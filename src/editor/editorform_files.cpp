// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
// The source of the theme and its files.
#include "editor/editorform.h"
#include "forms/clsopensave.h"
#include "forms/dialogs.h"
#include "forms/eventprocedure.h"
#include "forms/sourcedialog.h"
#include "preview/previewengine.h"
#include "shell/files.h"
#include "shell/state.h"
#include "theme/codepage.h"
#include "theme/files.h"
#include "theme/parsexml.h"
#include "theme/save.h"
#include "theme/tags.h"
#include "theme/writer.h"
#include "ui_editorform.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

const QString kNewThemeFile = u"New Theme.thm"_s;

}  // namespace

QString EditorForm::GenerateXml() const {
  if (desk_.state.DisableETT) return generateXml(engine_.values(), {});
  return generateXml(engine_.values(),
                     {ui_->txtThemeName->text(), ui_->txtThemeAuthor->text(),
                      ui_->txtThemeModifiedBy->text(), ui_->lblThemeCreated->text()});
}

QString EditorForm::askWhereToSave(const QString& title, const QString& folder,
                                   const QString& name) {
  clsOpenSave dialog(desk_.dialogs);
  dialog.DialogTitle = title;
  dialog.InitDir = folder;
  dialog.FileName = name;
  dialog.DefaultExt = u".thm"_s;
  dialog.Filter = u"Theme files (*.thm)|*.thm"_s;
  dialog.ShowSave(this);
  return dialog.FileName;
}

void EditorForm::btnSave_Click(int index) {
  const QString title = index == 1 ? u"Save theme file as"_s : u"Save theme file"_s;
  const bool isNew = !EditorThemeFile.contains(u'/');
  QString path = EditorThemeFile;
  if (isNew || index == 1)
    path = askWhereToSave(title, desk_.state.ThemesFolder,
                          isNew ? kNewThemeFile : SplitPath(EditorThemeFile, PathPart::Name));
  // The name is cut at its first point; the dialog asks before a theme that bears what is left of
  // it is replaced.
  while (themeSavePath(path) != path && FileExists(themeSavePath(path)))
    path = askWhereToSave(title, SplitPath(path, PathPart::Folder),
                          SplitPath(themeSavePath(path), PathPart::Name));
  const ThemeSave save{.themePath = themeSavePath(path),
                       .edited = engine_.values(),
                       .shown = &shown_.values(),
                       .xml = GenerateXml(),
                       .includeIndex = desk_.state.IncludeIndexFile,
                       .compress = desk_.state.CompressXMLCode,
                       .workFolder = desk_.state.AppTempFolder};
  saveTheme(save, tellTerminal);
  EditorThemeFile = save.themePath;
  showCaption();
}

void EditorForm::btnRefresh_Click() {
  ui_->txtXML->setPlainText(GenerateXml());
}

void EditorForm::btnCopy_Click() {
  btnRefresh_Click();
  QGuiApplication::clipboard()->setText(GenerateXml());
}

void EditorForm::btnExport_Click() {
  const QString path = askExportPath(this, desk_.dialogs, desk_.state, u"*.xml"_s);
  btnRefresh_Click();
  saveFile(path, toCodePage(GenerateXml()));
}

void EditorForm::btnImport_Click() {
  clsOpenSave dialog(desk_.dialogs);
  dialog.DialogTitle = u"Import the source XML code from a file"_s;
  dialog.InitDir = desk_.state.ImportFolder;
  dialog.FileName = u"*.xml"_s;
  dialog.Filter = kSourceFilter;
  dialog.ShowOpen(this);
  desk_.state.ImportFolder = SplitPath(dialog.FileName, PathPart::Folder);
  if (!takeSource(fromCodePage(readFile(dialog.FileName))))
    desk_.dialogs.message(
        this, MessageIcon::Warning, QString(),
        u"File \"%1\" does not contain the right XML code."_s.arg(dialog.FileName));
}

void EditorForm::btnPaste_Click() {
  const QMimeData* clip = QGuiApplication::clipboard()->mimeData();
  if (!clip || !clip->hasText())
    desk_.dialogs.message(this, MessageIcon::Warning, QString(), u"No source XML code found."_s);
  else if (!takeSource(clip->text()))
    desk_.dialogs.message(this, MessageIcon::Warning, QString(),
                          u"The Clipboard does not contain the right XML code."_s);
}

bool EditorForm::takeSource(const QString& xml) {
  if (!xml.contains(QLatin1String(kind_.root), Qt::CaseInsensitive)) return false;
  applyXmlToEngine(xml);
  ColorsToControls();
  DrawPreviews();
  ui_->txtXML->setPlainText(GenerateXml());
  CheckColorContrast();
  return true;
}

void EditorForm::applyXmlToEngine(const QString& xml) {
  ThemeValues values = engine_.values();
  const ThemeSchema& schema = values.schema();
  for (std::size_t color = 0; color < schema.colors.size(); ++color)
    values.setColor(static_cast<int>(color),
                    ParseXML(QString(schema.colors[color].element), xml, parseFaults_.reporter()));
  for (int slot = 0; slot < slotCount(); ++slot)
    values.setImage(slot, {});
  engine_.takeTheme(values);
}

}  // namespace quillane
