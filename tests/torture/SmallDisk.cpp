#include "torture/SmallDisk.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/statvfs.h>
#include <unistd.h>
#include <QByteArray>
#include <QFile>

#include "torture/FileCalls.h"

namespace {

constexpr const char* Plenty = "size=16m";

void Tell(const char* file, const QByteArray& text) {
  QFile out(QString::fromLatin1(file));
  if (out.open(QIODevice::WriteOnly)) out.write(text);
}

}  // namespace

void KeepMountsToOneself() {
  const auto user = ::getuid(), group = ::getgid();
  if (::unshare(CLONE_NEWNS) != 0) {
    if (::unshare(CLONE_NEWUSER | CLONE_NEWNS) != 0) return;
    // In there the user is who he was.
    Tell("/proc/self/uid_map", QByteArray::number(user) + ' ' + QByteArray::number(user) + " 1");
    Tell("/proc/self/setgroups", "deny");
    Tell("/proc/self/gid_map", QByteArray::number(group) + ' ' + QByteArray::number(group) + " 1");
  }
  ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr);
}

SmallDisk::SmallDisk(QString folder) : m_folder(std::move(folder)) {
  m_there = Mount(0, Plenty);
}

SmallDisk::~SmallDisk() {
  if (m_there) ::umount2(m_folder.toLocal8Bit().constData(), MNT_DETACH);
}

bool SmallDisk::Mount(unsigned long flags, const QByteArray& size) const {
  return ::mount("karvex", m_folder.toLocal8Bit().constData(), "tmpfs", flags, size.constData()) == 0;
}

void SmallDisk::MakeRoom() const {
  if (!Mount(MS_REMOUNT, Plenty)) qFatal("the small disk can't be made larger");
}

void SmallDisk::RefuseWrites() const {
  if (!Mount(MS_REMOUNT | MS_RDONLY, Plenty)) qFatal("the small disk can't be made read-only");
}

void SmallDisk::LeaveBlocks(int blocks) const {
  struct statvfs status;
  if (::statvfs(m_folder.toLocal8Bit().constData(), &status) != 0) qFatal("the small disk can't be measured");
  const auto used = (status.f_blocks - status.f_bfree) * status.f_frsize;
  const auto size = used + static_cast<unsigned long>(blocks) * FileCalls::BlockSize;
  // No size at all would mean no limit.
  if (!Mount(MS_REMOUNT, "size=" + QByteArray::number(qulonglong(std::max(size, 1UL))))) {
    qFatal("the small disk can't be made smaller");
  }
}
