// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "editor/editor.h"
#include "editor/editortables.h"
#include "forms/heldfaults.h"
#include "preview/screens.h"

#include <QDialog>
#include <QList>
#include <QMap>

#include <memory>

class QAbstractButton;
class QGridLayout;
class QGroupBox;
class QLabel;
class QLineEdit;

namespace Ui {
class EditorForm;
}

namespace quillane {

class ColorSwatch;
class ImageButton;
class PictureBox;

/// What tells one editor from the other, beside its tables.
struct EditorKind {
  Generation generation;
  const char* name;  ///< Of the form, as it stands in messages.
  const char* root;  ///< What a source text of the generation holds, letter case aside.
};

/// The editor of a theme, the same program for both generations. It works on an engine of its own,
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

  /// Paints every screen on its pane.
  virtual void paintPanes(const FaultReporter& report) = 0;
  /// Asks for a colour, from `PickerColorIn` to `PickerColorOut`; false when it stays.
  virtual bool PickColor() = 0;
  /// A new theme's editor is being filled, or the colours of a source have come in.
  virtual void startPlain() {}
  /// A slot has got a file.
  virtual void imageFilled(int slot);
  /// Whether a file that fits may fill its slot and others besides, for `btnAutoSelect`.
  virtual void imageMatched(int slot, const QString& path);
  /// The slot that the file chosen for `btnAutoSelect` fills.
  virtual int firstAutoSlot() const = 0;

  PictureBox* pane(const QString& name) const { return panes_.value(name); }
  /// Redraws all previews, with the steps of the simulated phone.
  void DrawPreviews();
  void setSlotPath(int slot, const QString& path);
  const QString& slotPath(int slot) const;
  QAbstractButton* button(const char* name) const;
  template <class Engine>
  void paintAll(Engine& engine, std::span<const Screen<Engine>> screens, int highestDesktopIcon,
                const std::function<QString(const Screen<Engine>&)>& paneOf,
                const FaultReporter& report);

  EditorDesk desk_;

 private:
  using Procedure = void (EditorForm::*)();
  struct SlotControls {
    ColorSlot slot;
    int tab;
    ColorSwatch* swatch;
    QLineEdit* text;
    QLabel* warning;
  };

  // Building (editorform_build.cpp).
  void buildTabs();
  QWidget* buildColorPage(int tab);
  QGroupBox* buildGroup(int tab, const QString& caption);
  void addSlot(QGridLayout& grid, int tab, const ColorSlot& slot);
  void buildPanes();
  void buildImageSlots();
  void connectSignals();
  /// Runs the procedure of an event; its fault becomes a message.
  void run(const QString& event, const std::function<void()>& procedure);

  // Flow (editorform.cpp).
  void loadExisting();
  void loadNew();
  void readTags();
  void btnTabs_Click(int tab);
  void showCaption();
  void CopyPreviewToEditor();
  void ColorsToControls();
  void CheckColorContrast();
  void clearWarnings();
  void btnRevert_Click();
  void btnReset_Click();
  void lock(QLineEdit& field, bool locked);
  QLineEdit* fieldOf(const QObject* label) const;

  // Colours (editorform_colors.cpp).
  void lblClr_Click(const SlotControls& controls);
  void showColor(const SlotControls& controls);
  SlotControls& controlsOf(int color);

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
  bool fits(int slot) const;
  void fillSlot(int slot, const QString& path);

  // Source and files (editorform_files.cpp).
  QString GenerateXml() const;
  void btnSave_Click(int index);
  void btnRefresh_Click();
  void btnCopy_Click();
  void btnPaste_Click();
  void btnExport_Click();
  void btnImport_Click();
  /// Takes the colours of a source text; false when it is of no theme of this generation.
  bool takeSource(const QString& xml);
  void ApplyXmlToEngine();

  std::unique_ptr<Ui::EditorForm> ui_;
  const EditorKind& kind_;
  PreviewEngine& engine_;
  const PreviewEngine& shown_;
  HeldFaults faults_;  ///< Each text once in the life of the form.
  QString EditorThemeFile;
  int CurrentTab = 0;
  QList<EditorTab> tabs_;
  QList<QAbstractButton*> btnTabs_;
  QList<QWidget*> pages_;
  QList<SlotControls> slots_;
  QList<ImageButton*> btnImage_;
  QMap<QString, PictureBox*> panes_;
};

}  // namespace quillane
