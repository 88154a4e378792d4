// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editor.h"
#include "editor/editortables.h"
#include "forms/heldfaults.h"
#include "preview/screens.h"

#include <QDialog>
#include <QIcon>
#include <QList>
#include <QMap>

#include <functional>
#include <memory>

class QAbstractButton;
class QGridLayout;
class QLabel;
class QLineEdit;
class QToolButton;

namespace Ui {
class EditorForm;
}

namespace quillane {

class ColorField;
class ImageButton;
class PictureBox;
class PreviewEngine;
class clsOpenSave;

/// What tells one editor from the other, beside its tables.
struct EditorKind {
  Generation generation;
  const char* name;  ///< Of the form, as it stands in messages.
  const char* root;  ///< What a source text of the generation holds, letter case aside.
  int autoSlot;      ///< The image slot that the file chosen for `btnAutoSelect` fills.
};

/// An icon that takes up its place and shows nothing.
QIcon noIcon();

/// The editor of a theme, the same form for both generations. It works on an engine of its own,
/// so the theme in the browser stays as it is. There is no question on closing.
class EditorForm : public QDialog {
  Q_OBJECT

 public:
  ~EditorForm() override;

 protected:
  /// `engine` is edited; `shown` is the browser's. Whoever derives calls `Form_Load` when built.
  EditorForm(QWidget* owner, const EditorDesk& desk, const EditorKind& kind, PreviewEngine& engine,
             const PreviewEngine& shown);
  void Form_Load(bool openExisting);

  bool eventFilter(QObject* watched, QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;

  /// Paints the screens of the named panes, or of all.
  virtual void paintPanes(const QStringList& only, const FaultReporter& report) = 0;
  /// Asks for a colour, from `PickerColorIn` to `PickerColorOut`; false when it stays.
  virtual bool PickColor() = 0;
  /// A slot has got a file that a person chose, on its own or with `btnAutoSelect`.
  virtual void imageFilled(int slot, bool autoSelected);

  /// Redraws the named panes, or all, with the steps of the simulated phone.
  void DrawPreviews(const QStringList& only = {});
  PictureBox* pane(const QString& name) const { return panes_.value(name); }
  int slotCount() const { return static_cast<int>(btnImage_.size()); }
  const QString& slotPath(int slot) const;
  /// Puts a file, or none, into a slot and the engine.
  void setSlotPath(int slot, const QString& path);
  /// Connects one of the switches below the previews; it shows with the pane that it acts on, or
  /// with any.
  void useSwitch(QToolButton& button, const QString& pane, const std::function<void()>& procedure);

  EditorDesk desk_;
  std::unique_ptr<Ui::EditorForm> ui_;

 private:
  struct SlotControls {
    ColorSlot slot;
    int tab;
    ColorField* swatch;
    QLineEdit* text;
    QLabel* warning;
  };

  // Building (editorform_build.cpp).
  void buildTabs();
  QWidget* buildPage(int tab);
  QWidget* buildColorPage(int tab);
  void addSlot(QGridLayout& grid, int tab, const ColorSlot& slot);
  /// Width of the longest caption of a color, in pixels.
  int captionWidth() const;
  void buildPanes();
  void buildImageSlots();
  void connectSignals();
  /// Runs the procedure of an event; its fault becomes a message.
  void run(const QString& event, const std::function<void()>& procedure);
  /// The same for one that may have asked something: a key that was released over its dialog is
  /// never seen here.
  void runCommand(const QString& event, const std::function<void()>& procedure);

  // Flow (editorform.cpp).
  void loadExisting();
  void loadNew();
  void readTags();
  void btnTabs_Click(int tab);
  /// Shows the next tab that is not hidden, or with -1 the one before.
  void stepTab(int by);
  /// Moves the line below the tab on show.
  void placeCoverLine();
  void showCaption();
  void CopyPreviewToEditor();
  void ColorsToControls();
  void CheckColorContrast();
  void clearWarnings();
  void btnRevert_Click();
  void btnReset_Click();
  void lock(QLineEdit& field, bool locked);

  // Colours (editorform_colors.cpp).
  void lblClr_Click(const SlotControls& controls);
  void showColor(const SlotControls& controls);
  const SlotControls& controlsOf(int color) const;

  // Images (editorform_images.cpp).
  void ImagesToControls();
  void btnImage_Click(int slot);
  void btnImage_RightClick(int slot);
  void showImage(int slot);
  void clearImageInformation();
  void btnRemoveAll_Click();
  void btnAutoSelect_Click();
  /// Leaves the size of a picture file in `ImageSizeW` and `ImageSizeH`.
  void measure(const QString& path, int filterIndex);
  /// The size that was read last.
  QSize measured() const;
  const ImageElement& slotElement(int slot) const;
  clsOpenSave imageDialog(const ImageElement& element) const;
  /// Asks for a picture; false, after a message, when its size does not suit the slot.
  bool askForImage(clsOpenSave& dialog, const ImageElement& element);
  void fillSlot(int slot, const QString& path, bool autoSelected);
  void matchImages(const QString& chosen, int firstSlot);

  // Source and files (editorform_files.cpp).
  QString GenerateXml() const;
  QString askWhereToSave(const QString& title, const QString& folder, const QString& name);
  void btnSave_Click(int index);
  void btnRefresh_Click();
  void btnCopy_Click();
  void btnPaste_Click();
  void btnExport_Click();
  void btnImport_Click();
  /// Takes the colours of a source text; false when it is of no theme of this generation.
  bool takeSource(const QString& xml);
  /// Every colour from the text, and no images.
  void applyXmlToEngine(const QString& xml);

  const EditorKind& kind_;
  PreviewEngine& engine_;
  const PreviewEngine& shown_;
  HeldFaults faults_;       ///< Of painting, each text once in the life of the form.
  HeldFaults parseFaults_;  ///< Of reading a source, the same.
  QString EditorThemeFile;
  int CurrentTab = 0;
  QList<EditorTab> tabs_;
  QList<QAbstractButton*> btnTabs_;
  QList<QWidget*> pages_;
  QList<SlotControls> slots_;
  QList<ImageButton*> btnImage_;
  QMap<QString, PictureBox*> panes_;
  QList<std::pair<QToolButton*, QString>> switches_;  ///< In use, and the pane of each.
};

}  // namespace quillane
