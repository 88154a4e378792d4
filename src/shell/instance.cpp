// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/instance.h"

#include "theme/fault.h"

#include <QLockFile>

namespace quillane {

using namespace Qt::StringLiterals;

namespace {

bool isDamaged(const QLockFile& lock) {
  qint64 process = 0;
  QString host;
  QString program;
  return !lock.getLockInfo(&process, &host, &program);
}

}  // namespace

bool takeInstanceLock(QLockFile& lock) {
  lock.setStaleLockTime(0);
  if (lock.tryLock(0)) return true;
  if (lock.error() == QLockFile::LockFailedError)
    return isDamaged(lock) && lock.removeStaleLockFile() && lock.tryLock(0);
  throw Fault(FaultNumber::NoPermission,
              u"\"%1\" cannot be made. Quillane keeps its work beside it; allow writing "
              "to that folder and start again."_s.arg(lock.fileName()));
}

}  // namespace quillane
