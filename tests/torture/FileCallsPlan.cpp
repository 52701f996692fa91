#include "torture/FileCallsPlan.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>
#include <map>

namespace FileCalls {

namespace {

struct Desk {
  std::string Folder;
  Plan Wanted;
  int Count = 0;
  std::vector<Note> Notes;
  Note First{};
  std::vector<std::string> Harmed;
  std::map<int, std::string> Open;
  long Blocks = 0;  ///< How many the files have grown by.
  bool Full = false;
};

/// Absent until the first arming: the calls come before any constructor has run.
Desk* desk = nullptr;
bool armed = false;

bool Grows(Kind kind) {
  return kind == Kind::Create || kind == Kind::Write || kind == Kind::MakeFolder || kind == Kind::Rename ||
         kind == Kind::Flush || kind == Kind::Close || kind == Kind::Truncate;
}

/// What an error can befall from then on: a full disk still reads, and what may not be opened is never read.
bool Befalls(int error, Kind kind) {
  if (error == ENOSPC) return Grows(kind);
  if (error == EACCES) return kind != Kind::Read && kind != Kind::Write && kind != Kind::Flush && kind != Kind::Close;
  return true;
}

bool Fails(Kind kind) {
  const Plan& plan = desk->Wanted;
  if (plan.What == Harm::FailOnce) return desk->Count == plan.Nth;
  if (plan.What == Harm::FailFromOn) {
    return desk->Count == plan.Nth || (desk->Count > plan.Nth && Befalls(plan.Error, kind));
  }
  return false;
}

void NoteHarm() {
  if (desk->First.Nth == 0) desk->First = desk->Notes.back();
  desk->Harmed.push_back(desk->Notes.back().Path);
}

long BlocksOf(long bytes) {
  return (bytes + BlockSize - 1) / BlockSize;
}

/// The bytes of the write that the blocks still left hold.
long OnFullDisk(int descriptor, long size, long offset) {
  struct stat status;
  if (::fstat(descriptor, &status) != 0) return size;
  const long held = BlocksOf(status.st_size), left = desk->Wanted.Size - desk->Blocks;
  const long room = (held + left) * BlockSize - offset;
  const long taken = std::min(size, room);
  if (taken <= 0) return -desk->Wanted.Error;
  desk->Blocks += std::max(0L, BlocksOf(offset + taken) - held);
  return taken;
}

}  // namespace

std::string Watched(const char* path) {
  if (!armed || path == nullptr) return {};
  const std::string& folder = desk->Folder;
  const std::string text(path);
  if (text.compare(0, folder.size(), folder) != 0) return {};
  return text.size() == folder.size() || text[folder.size()] == '/' ? text : std::string();
}

std::string WatchedIn(int folder, const char* path) {
  if (!armed || path == nullptr) return {};
  if (folder == AT_FDCWD || path[0] == '/') return Watched(path);
  const std::string parent = WatchedOpen(folder);
  return parent.empty() ? std::string() : parent + '/' + path;
}

std::string WatchedOpen(int descriptor) {
  if (!armed) return {};
  const auto found = desk->Open.find(descriptor);
  return found == desk->Open.end() ? std::string() : found->second;
}

void Remember(int descriptor, const std::string& path) {
  desk->Open[descriptor] = path;
}

void Forget(int descriptor) {
  desk->Open.erase(descriptor);
}

void Die() {
  ::kill(::getpid(), SIGKILL);
  while (true) ::pause();
}

int Enter(Kind kind, const std::string& path, const std::string& to, long size, int descriptor) {
  ++desk->Count;
  desk->Notes.push_back({kind, desk->Count, path, to, size, 0, descriptor});
  if (desk->Wanted.What == Harm::Kill && desk->Count == desk->Wanted.Nth) Die();
  if (!Fails(kind)) return 0;
  NoteHarm();
  desk->Notes.back().Result = -desk->Wanted.Error;
  return desk->Wanted.Error;
}

long Allowed(int descriptor, size_t size, off_t offset) {
  const Plan& plan = desk->Wanted;
  const auto wanted = static_cast<long>(size);
  long allowed = wanted;
  if (plan.What == Harm::FullDisk) {
    allowed = OnFullDisk(descriptor, wanted, offset);
  } else if (plan.What == Harm::KillTorn || plan.What == Harm::ShortOnce || plan.What == Harm::ShortThenFull) {
    if (desk->Count == plan.Nth) {
      allowed = std::min(wanted, plan.Size);
    } else if (plan.What == Harm::ShortThenFull && desk->Count > plan.Nth) {
      struct stat status;
      const bool longer = ::fstat(descriptor, &status) == 0 && offset + wanted > status.st_size;
      if (longer) allowed = -plan.Error;
    }
  }
  if (allowed != wanted) {
    NoteHarm();
    desk->Notes.back().Result = allowed;
  }
  return allowed;
}

bool DiesTorn() {
  return desk->Wanted.What == Harm::KillTorn && desk->Count == desk->Wanted.Nth;
}

void Leave(long result) {
  desk->Notes.back().Result = result;
  // A file system of its own that is full, or takes no writes, does the harm by itself.
  if (result == -ENOSPC || result == -EROFS) NoteHarm();
}

void LeaveOpened(int descriptor) {
  desk->Notes.back().Descriptor = descriptor;
}

void Arm(const char* folder, const Plan& plan) {
  if (desk == nullptr) desk = new Desk;
  *desk = Desk{};
  desk->Folder = folder;
  desk->Wanted = plan;
  armed = true;
}

void Disarm() {
  armed = false;
}

void Heal() {
  desk->Wanted = Plan{};
}

int Count() {
  return desk->Count;
}

const std::vector<Note>& Notes() {
  return desk->Notes;
}

void Mark(const std::string& text) {
  if (armed) desk->Notes.push_back({Kind::Mark, 0, text, {}, 0, 0, -1});
}

const Note& Harmed() {
  return desk->First;
}

const std::vector<std::string>& HarmedPaths() {
  return desk->Harmed;
}

const char* NameOf(Kind kind) {
  switch (kind) {
    case Kind::Look:
      return "look";
    case Kind::List:
      return "list";
    case Kind::Open:
      return "open";
    case Kind::Create:
      return "create";
    case Kind::Read:
      return "read";
    case Kind::Write:
      return "write";
    case Kind::Truncate:
      return "truncate";
    case Kind::Flush:
      return "flush";
    case Kind::Close:
      return "close";
    case Kind::Permissions:
      return "permissions";
    case Kind::Rename:
      return "rename";
    case Kind::Remove:
      return "remove";
    case Kind::MakeFolder:
      return "make folder";
    case Kind::Mark:
      break;
  }
  return "mark";
}

}  // namespace FileCalls
