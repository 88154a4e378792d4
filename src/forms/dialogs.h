// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "theme/color.h"

#include <QString>
#include <QStringList>

#include <array>
#include <optional>

class QLabel;
class QUrl;
class QWidget;

namespace quillane {

class clsOpenSave;

/// What a file is asked for.
enum class FileQuestion { Open, Save };

/// The sixteen colours of a person's own in the system's colour dialog.
using CustomColors = std::array<ColorValue, 16>;

/// The icon of a message box.
enum class MessageIcon { Stop, Warning, Information, Question };

/// A question whose answers are buttons of its own.
struct Question {
  MessageIcon icon = MessageIcon::Question;
  QString title;
  QString text;
  QStringList buttons;  ///< Their captions. Escape and closing the box mean the last one.
  int standard = 0;     ///< Index of the button that Enter means.
  QString checkBox;     ///< Caption of a box to tick below the text; empty for none.
};

/// The button chosen, by its index, and whether the box was ticked.
struct Answer {
  int button = 0;
  bool ticked = false;
};

/// The boxes, pages and sounds with which forms turn to a person; a test answers them from a
/// script.
class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows a message and waits until it is closed.
  virtual void message(QWidget* owner, MessageIcon icon, const QString& title,
                       const QString& text) = 0;
  /// Asks a question and waits for the answer.
  virtual Answer ask(QWidget* owner, const Question& question) = 0;
  /// Asks for a folder, beginning at `startFolder`. The answer has no separator at its end unless
  /// it is the root, and is empty when the person cancels.
  virtual QString BrowseForFolder(QWidget* owner, const QString& startFolder,
                                  const QString& prompt) = 0;
  /// Shows a file dialog as `request` has it and leaves the answer there; false when the person
  /// cancels.
  virtual bool chooseFile(QWidget* owner, clsOpenSave& request, FileQuestion question) = 0;
  /// The system's colour dialog, beginning with `initial`; the person may change the custom
  /// colours. Nothing when the person cancels.
  virtual std::optional<ColorValue> chooseColor(QWidget* owner, ColorValue initial,
                                                CustomColors& custom) = 0;
  /// Shows a page in the desktop's browser; false when the desktop has none to show it.
  virtual bool openPage(const QUrl& page) = 0;
  /// The system's beep.
  virtual void beep() = 0;
};

/// A text of the program for a widget: with line ends that widgets understand, and cut to what a
/// person can read, since parts of it may come from a stranger's file.
QString widgetText(const QString& text);

/// A text on one line: control characters, which a file's name may hold, become blanks.
QString oneLine(QString text);

/// A stranger's text for a tooltip, which would take some texts for markup.
QString tipText(const QString& text);

/// Shows a stranger's text in the one line that a label has, and all of it as its tooltip where
/// that is too short.
void showLine(QLabel& label, const QString& text);

/// A text of the program for the title of a window, whose toolkit takes a single "[*]" for its mark
/// of an unsaved document.
QString titleText(QString text);

/// The ending that a filter of Qt stands for, as "gif" for "Pictures (*.gif)"; empty for one with
/// several patterns or none.
QString suffixOf(const QString& nameFilter);

/// Asks for a folder, beginning at the remembered one, which becomes the answer. False when the
/// person cancels.
bool askFolder(Dialogs& dialogs, QWidget* owner, const QString& prompt, QString& remembered);

/// The dialogs of the desktop.
class DesktopDialogs : public Dialogs {
 public:
  void message(QWidget* owner, MessageIcon icon, const QString& title,
               const QString& text) override;
  Answer ask(QWidget* owner, const Question& question) override;
  QString BrowseForFolder(QWidget* owner, const QString& startFolder,
                          const QString& prompt) override;
  bool chooseFile(QWidget* owner, clsOpenSave& request, FileQuestion question) override;
  std::optional<ColorValue> chooseColor(QWidget* owner, ColorValue initial,
                                        CustomColors& custom) override;
  bool openPage(const QUrl& page) override;
  void beep() override;
};

}  // namespace quillane
