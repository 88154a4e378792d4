// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editortables.h"
#include "editor/frmeditor.h"
#include "editor/frmeditor2.h"
#include "editor/imagebutton.h"
#include "forms/colorfield.h"
#include "forms/picturebox.h"
#include "shell/imagerules.h"
#include "support/controls.h"
#include "support/desktest.h"
#include "support/scripteddialogs.h"
#include "support/tinygif.h"
#include "theme/archive.h"
#include "theme/load.h"

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <memory>

namespace quillane {

constexpr Generation kBoth[] = {Generation::Two, Generation::ThreeG};

/// An editor with a program folder, settings and a theme on show of its own.
class EditorTest : public DeskTest {
 protected:
  EditorTest() {
    state.ImageFolder = makeFolder("images") + '/';
    state.ExportFolder = makeFolder("exported") + '/';
    state.ImportFolder = makeFolder("imported") + '/';
  }

  /// Packs a theme into "themes" and brings it on show as the browser does.
  void showTheme(Generation which, const QString& name, const QByteArray& elements,
                 const QList<std::pair<QString, QSize>>& images = {}) {
    const QByteArray root = which == Generation::Two ? "Ericsson_theme" : "Sony_Ericsson_theme";
    QStringList members{write("temp/t.xml", '<' + root + '>' + elements + "</" + root + '>')};
    for (const auto& [image, size] : images)
      members << write("temp/" + image, tinyGif(size, {QPoint(), size}, 1));
    packArchive(makeFolder("themes") + '/' + name, members);
    const LoadedTheme theme = *loadTheme(path("temp"), state.ImageState, faults.reporter());
    generation = state.ThemeGeneration = which;
    shownEngine().takeTheme(theme.values);
    state.ThemeXml = theme.xml;
    state.ThemeXmlPath = theme.xmlPath;
    state.ThemeFilePath = path("themes/" + name);
  }
  void open(bool existing) {
    form.reset();
    if (generation == Generation::Two)
      form = std::make_unique<frmEditor>(nullptr, desk, existing);
    else
      form = std::make_unique<frmEditor2>(nullptr, desk, existing);
    form->show();
    form->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(form.get()));
  }
  void openNew(Generation which) {
    generation = which;
    open(false);
  }

  template <class Control>
  Control& control(const QString& name) {
    return controlOf<Control>(*form, name);
  }
  /// Brings a control's tab to the front and clicks it.
  void click(const QString& name, Qt::MouseButton button = Qt::LeftButton) {
    auto& target = control<QWidget>(name);
    for (int tab = 0; !target.isVisible() && tab < editorTabs(generation).size(); ++tab)
      QTest::mouseClick(&control<QWidget>(QString("btnTabs_%1").arg(tab)), Qt::LeftButton);
    EXPECT_TRUE(target.isVisible()) << name.toStdString();
    QTest::mouseClick(&target, button);
  }
  bool enabled(const QString& name) { return control<QWidget>(name).isEnabled(); }
  /// The buttons for which it matters where the theme came from, as in "Reset Import Paste".
  QString originButtons() {
    QStringList on;
    for (const char* name : {"Revert", "Reset", "Import", "Paste"})
      if (enabled(QString("btn%1").arg(name))) on << name;
    return on.join(' ');
  }
  QString text(const QString& name) { return control<QLineEdit>(name).text(); }
  QString label(const QString& name) { return control<QLabel>(name).text(); }
  QString source() { return control<QPlainTextEdit>("txtXML").toPlainText(); }
  QString caption() { return form->windowTitle(); }
  ImageButton& slot(int index) { return control<ImageButton>(QString("btnImage_%1").arg(index)); }
  /// The slots with a file as in "0back 3top", and a "!" where button and engine disagree.
  QString slotFiles() {
    QStringList files;
    for (int at = 0; at < static_cast<int>(engine().values().schema().images.size()); ++at) {
      const QString file = slot(at).path();
      const bool fits = engine().image(at) == file && slot(at).icon().isNull() == file.isEmpty();
      if (!fits || !file.isEmpty())
        files << QString::number(at) + QFileInfo(file).baseName() + (fits ? "" : "!");
    }
    return files.join(' ');
  }

  QList<ColorSlot> colorSlots() const {
    QList<ColorSlot> found;
    for (const EditorTab& tab : editorTabs(generation))
      found += tab.colorSlots;
    return found;
  }
  /// Clicks a swatch and answers its dialog; an empty colour cancels it.
  void pick(const QString& stem, const QString& rgb) {
    const ColorValue color = control<ColorField>("lbl" + stem + "Clr").color();
    const QString before = ColorToHtml(QString::number(color));
    if (generation == Generation::ThreeG)
      dialogs.expectColor(before, rgb);
    else
      QTimer::singleShot(0, [=] { usePicker(before, rgb); });
    click("lbl" + stem + "Clr");
  }
  static void usePicker(const QString& before, const QString& rgb) {
    QWidget* const picker = QApplication::activeModalWidget();
    ASSERT_TRUE(picker);
    EXPECT_EQ(picker->findChild<ColorField*>("lblOldColor")->color(), colorValueOf(before));
    picker->findChild<QLineEdit*>("txtHTML")->setText(rgb);
    picker->findChild<QPushButton*>(rgb.isEmpty() ? "btnCancel" : "btnOK")->click();
  }
  const ImageElement& element(int slot) const {
    return schemaOf(generation).images[static_cast<std::size_t>(slot)];
  }
  /// Clicks an image's button and answers its dialog.
  void choose(int index, const QString& file, int filter = 1) {
    dialogs.expectFile(imageDialogTitle(element(index)), file, filter);
    click(QString("btnImage_%1").arg(index));
  }
  QString gif(const QString& name, QSize size) const {
    return write("images/" + name, tinyGif(size, {QPoint(), size}, 1));
  }

  /// All colours, and the images by their bare names.
  static QStringList contentOf(const ThemeValues& values) {
    QStringList content;
    for (std::size_t at = 0; at < values.schema().colors.size(); ++at)
      content += values.color(static_cast<int>(at));
    for (std::size_t at = 0; at < values.schema().images.size(); ++at)
      content += QFileInfo(values.image(static_cast<int>(at))).fileName();
    return content;
  }
  /// Extracts and loads a theme from its file.
  LoadedTheme saved(const QString& file) {
    QDir(path("again")).removeRecursively();
    EXPECT_EQ(extractArchive(path(file), makeFolder("again")).code, 0) << file.toStdString();
    ImageStates states{};
    return loadTheme(path("again"), states, faults.reporter()).value_or(LoadedTheme());
  }

  PreviewEngine& engine() { return engineOf(*state.EditorEngine2, *state.EditorEngine3G); }
  PreviewEngine& shownEngine() { return engineOf(*state.PreviewEngine2, *state.PreviewEngine3G); }

  /// Keeps the last message.
  struct TitledDialogs : ScriptedDialogs {
    QString title, text;
    MessageIcon icon{};
    void message(QWidget* owner, MessageIcon its, const QString& head,
                 const QString& words) override {
      title = head;
      text = words;
      icon = its;
      ScriptedDialogs::message(owner, its, head, words);
    }
  };

  TitledDialogs dialogs;
  EditorDesk desk{state, settings, dialogs, world};
  Generation generation = Generation::Two;
  std::unique_ptr<EditorForm> form;

 private:
  PreviewEngine& engineOf(PreviewEngine& two, PreviewEngine& threeG) const {
    return generation == Generation::Two ? two : threeG;
  }
};

}  // namespace quillane
