// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/jpegreader.h"

#include "preview/picture.h"

#include <csetjmp>
#include <cstdio>
#include <jpeglib.h>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

#define QUILLANE_TEXT_OF(token) #token
#define QUILLANE_VERSION_TEXT(token) QUILLANE_TEXT_OF(token)
constexpr QLatin1String kVersionText(QUILLANE_VERSION_TEXT(LIBJPEG_TURBO_VERSION));

/// Ends the reading at an error or a warning, in silence. So what is decoded is never more than the
/// bytes are good for, however many scans they announce.
struct Errors {
  jpeg_error_mgr manager;  // First, so that the library's pointer to it is one to the whole.
  std::jmp_buf end;
};

[[noreturn]] void endReading(j_common_ptr jpeg) {
  std::longjmp(reinterpret_cast<Errors*>(jpeg->err)->end, 1);
}

void takeMessage(j_common_ptr jpeg, int level) {
  if (level < 0) endReading(jpeg);
}

/// Reads to the last row; false where something is wrong. The library jumps out of here, so nothing
/// with a destructor may be made.
bool decode(jpeg_decompress_struct& jpeg, Errors& errors, QByteArrayView bytes,
            PictureFacts& facts) {
  if (setjmp(errors.end) != 0) return false;
  jpeg_create_decompress(&jpeg);
  jpeg_mem_src(&jpeg, reinterpret_cast<const uchar*>(bytes.data()),
               static_cast<unsigned long>(bytes.size()));
  jpeg_read_header(&jpeg, TRUE);
  facts.size = QSize(static_cast<int>(jpeg.image_width), static_cast<int>(jpeg.image_height));
  facts.isBaseline = jpeg.progressive_mode == FALSE && jpeg.arith_code == FALSE;
  if (isTooLarge(facts.size)) return false;
  if (!facts.isBaseline) return true;
  jpeg_start_decompress(&jpeg);
  JSAMPARRAY const row = (*jpeg.mem->alloc_sarray)(
      reinterpret_cast<j_common_ptr>(&jpeg), JPOOL_IMAGE,
      jpeg.output_width * static_cast<JDIMENSION>(jpeg.output_components), 1);
  while (jpeg.output_scanline < jpeg.output_height)
    jpeg_read_scanlines(&jpeg, row, 1);
  jpeg_finish_decompress(&jpeg);
  return true;
}

}  // namespace

void readJpeg(const QByteArray& bytes, PictureFacts& facts) {
  Errors errors{};
  jpeg_decompress_struct jpeg{};
  jpeg.err = jpeg_std_error(&errors.manager);
  errors.manager.error_exit = endReading;
  errors.manager.emit_message = takeMessage;
  facts.isDamaged = !decode(jpeg, errors, bytes, facts);
  jpeg_destroy_decompress(&jpeg);
}

QString jpegLibraryVersion() {
  return kVersionText;
}

}  // namespace quillane
