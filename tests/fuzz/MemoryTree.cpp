#include "fuzz/MemoryTree.h"

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>
#include <algorithm>
#include <cerrno>
#include <cstdarg>
#include <cstring>
#include <map>
#include <memory>
#include <QFile>
#include <string>
#include <string_view>
#include <vector>

namespace {

struct Node {
  bool IsFolder = false;
  std::string Bytes{};
};

struct Descriptor {
  std::string Path;
  std::shared_ptr<Node> Opened;
  off_t At = 0;
  bool Listed = false;
};

/// Above each descriptor that the system gives.
constexpr int FirstDescriptor = 1 << 20;

struct Tree {
  std::string Root;  ///< Empty while everything is the system's.
  std::map<std::string, std::shared_ptr<Node>, std::less<>> Nodes;
  std::vector<Descriptor> Descriptors;
};

Tree& Kept() {
  static Tree tree;
  return tree;
}

int Fail(int error) {
  errno = error;
  return -1;
}

template <typename Call>
Call* Next(const char* name) {
  return reinterpret_cast<Call*>(::dlsym(RTLD_NEXT, name));
}

bool IsOurs(const char* path) {
  const std::string& root = Kept().Root;
  if (root.empty() || std::strncmp(path, root.c_str(), root.size()) != 0) return false;
  return path[root.size()] == '/' || path[root.size()] == '\0';
}

bool IsOurs(int descriptor) {
  return descriptor >= FirstDescriptor;
}

Descriptor* Of(int descriptor) {
  const auto at = static_cast<size_t>(descriptor - FirstDescriptor);
  auto& all = Kept().Descriptors;
  return at < all.size() && all[at].Opened ? &all[at] : nullptr;
}

/// Without separators that say nothing.
std::string Spelled(std::string_view path) {
  std::string spelled;
  spelled.reserve(path.size());
  for (const char c : path) {
    if (c != '/' || spelled.empty() || spelled.back() != '/') spelled += c;
  }
  if (spelled.back() == '/') spelled.pop_back();
  return spelled;
}

/// By a view of the path: a look at it takes no memory, which is what most of a run's time goes into.
std::shared_ptr<Node> Find(std::string_view path) {
  const auto found = Kept().Nodes.find(path);
  return found == Kept().Nodes.end() ? nullptr : found->second;
}

/// 0 where a file or folder of that name may stand, or the error that the system would give.
int PlaceError(std::string_view path) {
  if (path.size() >= PATH_MAX) return ENAMETOOLONG;
  for (size_t begin = Kept().Root.size(); begin < path.size();) {
    const size_t end = std::min(path.find('/', begin + 1), path.size());
    if (end - begin - 1 > NAME_MAX) return ENAMETOOLONG;
    const auto above = Find(path.substr(0, begin));
    if (!above) return ENOENT;
    if (!above->IsFolder) return ENOTDIR;
    begin = end;
  }
  return 0;
}

int Open(const std::string& path, int flags) {
  if (const int error = PlaceError(path)) return Fail(error);
  std::shared_ptr<Node> node = Find(path);
  const bool writes = (flags & O_ACCMODE) != O_RDONLY;
  if (node && (flags & O_CREAT) != 0 && (flags & O_EXCL) != 0) return Fail(EEXIST);
  if (node && node->IsFolder && writes) return Fail(EISDIR);
  if (node && !node->IsFolder && (flags & O_DIRECTORY) != 0) return Fail(ENOTDIR);
  if (!node) {
    if ((flags & O_CREAT) == 0) return Fail(ENOENT);
    node = Kept().Nodes[path] = std::make_shared<Node>();
  }
  if (writes && (flags & O_TRUNC) != 0) node->Bytes.clear();
  auto& all = Kept().Descriptors;
  const auto free = std::find_if(all.begin(), all.end(), [](const Descriptor& each) { return !each.Opened; });
  const auto at = static_cast<int>(free - all.begin());
  if (free == all.end()) all.emplace_back();
  all[static_cast<size_t>(at)] = {path, node};
  return FirstDescriptor + at;
}

void Describe(const Node& node, struct stat* status) {
  *status = {};
  status->st_mode = node.IsFolder ? S_IFDIR | 0700U : S_IFREG | 0600U;
  status->st_size = static_cast<off_t>(node.Bytes.size());
  status->st_nlink = 1;
}

int Look(const std::string& path, struct stat* status) {
  if (const int error = PlaceError(path)) return Fail(error);
  const auto node = Find(path);
  if (!node) return Fail(ENOENT);
  Describe(*node, status);
  return 0;
}

ssize_t ReadAt(const std::string& bytes, void* data, size_t size, off_t offset) {
  if (static_cast<size_t>(offset) >= bytes.size()) return 0;
  const size_t taken = std::min(size, bytes.size() - static_cast<size_t>(offset));
  std::memcpy(data, bytes.data() + offset, taken);
  return static_cast<ssize_t>(taken);
}

ssize_t WriteAt(std::string& bytes, const void* data, size_t size, off_t offset) {
  const size_t end = static_cast<size_t>(offset) + size;
  if (bytes.size() < end) bytes.resize(end);
  std::memcpy(bytes.data() + offset, data, size);
  return static_cast<ssize_t>(size);
}

/// One entry as the system lays it out.
void AppendEntry(std::vector<char>& entries, const std::string& name, bool isFolder) {
  constexpr size_t head = offsetof(dirent64, d_name);
  const size_t length = (head + name.size() + 1 + 7) / 8 * 8;
  const size_t at = entries.size();
  entries.resize(at + length);
  const ino64_t number = 1;
  const auto written = static_cast<unsigned short>(length);
  const unsigned char kind = isFolder ? DT_DIR : DT_REG;
  std::memcpy(entries.data() + at + offsetof(dirent64, d_ino), &number, sizeof number);
  std::memcpy(entries.data() + at + offsetof(dirent64, d_reclen), &written, sizeof written);
  std::memcpy(entries.data() + at + offsetof(dirent64, d_type), &kind, sizeof kind);
  std::memcpy(entries.data() + at + head, name.c_str(), name.size() + 1);
}

std::vector<char> EntriesOf(const std::string& folder) {
  std::vector<char> entries;
  AppendEntry(entries, ".", true);
  AppendEntry(entries, "..", true);
  const std::string prefix = folder + '/';
  for (auto it = Kept().Nodes.lower_bound(prefix); it != Kept().Nodes.end() && it->first.starts_with(prefix); ++it) {
    const std::string name = it->first.substr(prefix.size());
    if (name.find('/') == std::string::npos) AppendEntry(entries, name, it->second->IsFolder);
  }
  return entries;
}

}  // namespace

void MemoryTree::KeepHere(const QString& folder) {
  Kept() = {};
  Kept().Root = QFile::encodeName(folder).toStdString();
  Kept().Nodes[Kept().Root] = std::make_shared<Node>(Node{.IsFolder = true});
}

extern "C" {

int open(const char* path, int flags, ...) {
  static auto* const next = Next<int(const char*, int, ...)>("open");
  va_list arguments;
  va_start(arguments, flags);
  const int mode = (flags & O_CREAT) != 0 ? va_arg(arguments, int) : 0;
  va_end(arguments);
  return IsOurs(path) ? Open(Spelled(path), flags) : next(path, flags, mode);
}

int close(int descriptor) {
  static auto* const next = Next<int(int)>("close");
  if (!IsOurs(descriptor)) return next(descriptor);
  Descriptor* const open = Of(descriptor);
  if (open == nullptr) return Fail(EBADF);
  open->Opened.reset();
  return 0;
}

ssize_t pread(int descriptor, void* data, size_t size, off_t offset) {
  static auto* const next = Next<ssize_t(int, void*, size_t, off_t)>("pread");
  if (!IsOurs(descriptor)) return next(descriptor, data, size, offset);
  const Descriptor* const open = Of(descriptor);
  if (open == nullptr) return Fail(EBADF);
  return open->Opened->IsFolder ? Fail(EISDIR) : ReadAt(open->Opened->Bytes, data, size, offset);
}

ssize_t pwrite(int descriptor, const void* data, size_t size, off_t offset) {
  static auto* const next = Next<ssize_t(int, const void*, size_t, off_t)>("pwrite");
  if (!IsOurs(descriptor)) return next(descriptor, data, size, offset);
  const Descriptor* const open = Of(descriptor);
  return open == nullptr ? Fail(EBADF) : WriteAt(open->Opened->Bytes, data, size, offset);
}

ssize_t write(int descriptor, const void* data, size_t size) {
  static auto* const next = Next<ssize_t(int, const void*, size_t)>("write");
  if (!IsOurs(descriptor)) return next(descriptor, data, size);
  Descriptor* const open = Of(descriptor);
  if (open == nullptr) return Fail(EBADF);
  const ssize_t written = WriteAt(open->Opened->Bytes, data, size, open->At);
  open->At += written;
  return written;
}

int ftruncate(int descriptor, off_t size) noexcept {
  static auto* const next = Next<int(int, off_t)>("ftruncate");
  if (!IsOurs(descriptor)) return next(descriptor, size);
  const Descriptor* const open = Of(descriptor);
  if (open == nullptr) return Fail(EBADF);
  open->Opened->Bytes.resize(static_cast<size_t>(size));
  return 0;
}

int fchmod(int descriptor, mode_t mode) noexcept {
  static auto* const next = Next<int(int, mode_t)>("fchmod");
  return IsOurs(descriptor) ? 0 : next(descriptor, mode);
}

ssize_t getdents64(int descriptor, void* data, size_t size) noexcept {
  static auto* const next = Next<ssize_t(int, void*, size_t)>("getdents64");
  if (!IsOurs(descriptor)) return next(descriptor, data, size);
  Descriptor* const open = Of(descriptor);
  if (open == nullptr) return Fail(EBADF);
  if (open->Listed) return 0;
  // A folder of a few files: all at once.
  const std::vector<char> entries = EntriesOf(open->Path);
  if (entries.size() > size) return Fail(EINVAL);
  std::memcpy(data, entries.data(), entries.size());
  open->Listed = true;
  return static_cast<ssize_t>(entries.size());
}

int stat(const char* path, struct stat* status) noexcept {
  static auto* const next = Next<int(const char*, struct stat*)>("stat");
  return IsOurs(path) ? Look(Spelled(path), status) : next(path, status);
}

int lstat(const char* path, struct stat* status) noexcept {
  static auto* const next = Next<int(const char*, struct stat*)>("lstat");
  return IsOurs(path) ? Look(Spelled(path), status) : next(path, status);
}

int fstatat(int folder, const char* path, struct stat* status, int flags) noexcept {
  static auto* const next = Next<int(int, const char*, struct stat*, int)>("fstatat");
  if (!IsOurs(folder)) return next(folder, path, status, flags);
  const Descriptor* const open = Of(folder);
  return open == nullptr ? Fail(EBADF) : Look(Spelled(open->Path + '/' + path), status);
}

int access(const char* path, int mode) noexcept {
  static auto* const next = Next<int(const char*, int)>("access");
  struct stat status;
  return IsOurs(path) ? Look(Spelled(path), &status) : next(path, mode);
}

int unlink(const char* path) noexcept {
  static auto* const next = Next<int(const char*)>("unlink");
  if (!IsOurs(path)) return next(path);
  const std::string spelled = Spelled(path);
  if (const int error = PlaceError(spelled)) return Fail(error);
  const auto node = Find(spelled);
  if (!node) return Fail(ENOENT);
  if (node->IsFolder) return Fail(EISDIR);
  Kept().Nodes.erase(spelled);
  return 0;
}

int rename(const char* from, const char* to) noexcept {
  static auto* const next = Next<int(const char*, const char*)>("rename");
  if (!IsOurs(from)) return next(from, to);
  const std::string source = Spelled(from), target = Spelled(to);
  if (const int error = PlaceError(target)) return Fail(error);
  const auto node = Find(source);
  if (!node) return Fail(ENOENT);
  if (node->IsFolder) return Fail(EBUSY);
  if (const auto old = Find(target); old && old->IsFolder) return Fail(EISDIR);
  Kept().Nodes.erase(source);
  Kept().Nodes[target] = node;
  return 0;
}

int mkdir(const char* path, mode_t mode) noexcept {
  static auto* const next = Next<int(const char*, mode_t)>("mkdir");
  if (!IsOurs(path)) return next(path, mode);
  const std::string spelled = Spelled(path);
  if (const int error = PlaceError(spelled)) return Fail(error);
  if (Find(spelled)) return Fail(EEXIST);
  Kept().Nodes[spelled] = std::make_shared<Node>(Node{.IsFolder = true});
  return 0;
}

}  // extern "C"
