// SPDX-FileCopyrightText: 2026 The Quillane developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "shell/instance.h"

#include "support/tempfolder.h"

#include <QLockFile>

namespace quillane {

namespace {

class Instance : public TempFolder {};

TEST_F(Instance, IsOneAtATime) {
  QLockFile first(path("lock"));
  QLockFile second(path("lock"));
  EXPECT_TRUE(takeInstanceLock(first));
  EXPECT_FALSE(takeInstanceLock(second));
  first.unlock();
  EXPECT_TRUE(takeInstanceLock(second));
}

TEST_F(Instance, DeadAndDamagedLocksDoNotCount) {
  for (const QByteArray& left :
       {QByteArray(), QByteArray("%"), QByteArray("999999999\nquillane\n")}) {
    QLockFile lock(write("lock", left));
    EXPECT_TRUE(takeInstanceLock(lock)) << left.toStdString();
  }
}

TEST_F(Instance, SaysWhereALockCannotBeMade) {
  QLockFile lock(path("missing/lock"));
  EXPECT_EQ(faultNumberOf([&] { takeInstanceLock(lock); }),
            static_cast<int>(FaultNumber::NoPermission));
}

}  // namespace

}  // namespace quillane
