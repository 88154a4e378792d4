// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "forms/frmabout.h"

#include "forms/formicons.h"
#include "forms/frmsplash.h"
#include "preview/faces.h"
#include "preview/platform.h"
#include "shell/fileoperation.h"
#include "shell/gifwriter.h"
#include "shell/jpegreader.h"
#include "shell/quantize.h"
#include "theme/archive.h"
#include "ui_frmabout.h"

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

constexpr int kOkPicture = 101;

QString qtVersion() {
  return QLatin1String(qVersion());
}

/// A library in use.
struct Library {
  const char* name;
  QString (*version)();
  const char* purpose;
  const char* licence;
};

constexpr Library kLibraries[] = {
    {"Qt", qtVersion, "windows, pictures and files", "LGPL-3.0"},
    {"libarchive", archiveLibraryVersion, "theme archives", "BSD-2-Clause"},
    {"libimagequant", quantizerVersion, "256 colors", "GPL-3.0-or-later"},
    {"giflib", gifLibraryVersion, "GIF files", "MIT"},
    {"libjpeg-turbo", jpegLibraryVersion, "the check of JPEG files", "IJG and BSD-3-Clause"},
    {"FreeType", freeTypeVersion, "texts of the screens", "FTL or GPL-2.0"},
    {"GLib", glibVersion, "the way to the trash", "LGPL-2.1-or-later"},
    {"Fontconfig", fontconfigVersion, "finding typefaces", "HPND"},
};

QString librariesTable() {
  QString rows;
  for (const Library& library : kLibraries)
    rows += u"<tr><td>%1 %2&nbsp;&nbsp;</td><td>%3&nbsp;&nbsp;</td><td>%4</td></tr>"_s.arg(
        QLatin1String(library.name), library.version(), QLatin1String(library.purpose),
        QLatin1String(library.licence));
  return "<table cellspacing=\"0\" cellpadding=\"1\">"_L1 + rows + "</table>"_L1;
}

}  // namespace

frmAbout::frmAbout(QWidget* owner) : QDialog(owner), ui_(std::make_unique<Ui::frmAbout>()) {
  ui_->setupUi(this);
  ui_->imgIcon->setPixmap(programPicture());
  ui_->lblVersion->setText(versionCaption());
  ui_->lblLibraries->setText(librariesTable());
  ui_->btnOK->setIcon(formIcon(kOkPicture));
  ui_->btnOK->setFocus();
  connect(ui_->btnOK, &QPushButton::clicked, this, &QDialog::accept);
}

frmAbout::~frmAbout() = default;

void showAbout(QWidget* owner) {
  frmAbout(owner).exec();
}

}  // namespace quillane
