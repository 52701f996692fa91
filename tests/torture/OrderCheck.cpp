// What is published is whole on the disk first, and sure to be found there before the user hears of it.
#include <map>
#include <set>

#include "torture/Sweeps.h"

using namespace Qt::StringLiterals;
using FileCalls::Kind;
using FileCalls::Note;

namespace {

std::string FolderOfPath(const std::string& path) {
  return path.substr(0, path.rfind('/'));
}

/// Follows a trace call by call.
class Follower {
 public:
  QString Faults;

  void Follow(const Note& note) {
    if (note.Result < 0) return;
    switch (note.What) {
      case Kind::Create:
        m_written[note.Path] = Unflushed;
        break;
      case Kind::Write:
      case Kind::Truncate:
        m_written[note.Path] = Unflushed;
        if (note.What == Kind::Write && note.Result < note.Size) Say(note.Path, "was written short");
        break;
      case Kind::Flush:
        Flush(note.Path);
        break;
      case Kind::Close:
        if (m_written[note.Path] == Flushed) m_written[note.Path] = Closed;
        break;
      case Kind::Rename:
        Rename(note);
        break;
      case Kind::Remove:
        Remove(note.Path);
        break;
      case Kind::Mark:
        for (const std::string& path : m_unsure) Say(path, "is told of before its folder was flushed");
        m_unsure.clear();
        break;
      default:
        break;
    }
  }

 private:
  enum State { Untouched, Unflushed, Flushed, Closed };

  void Say(const std::string& path, const char* what) {
    Faults += u"  %1 %2\n"_s.arg(QString::fromStdString(path), QString::fromLatin1(what));
  }

  void Flush(const std::string& path) {
    const auto written = m_written.find(path);
    if (written != m_written.end() && written->second == Unflushed) written->second = Flushed;
    std::erase_if(m_unsure, [&](const std::string& file) { return FolderOfPath(file) == path; });
  }

  void Rename(const Note& note) {
    if (m_dropped.contains(note.To)) Say(note.To, "had its copy in the Backup folder dropped before it stood");
    if (m_written[note.Path] != Closed) Say(note.To, "is published before its content was flushed and closed");
    m_written[note.To] = m_written[note.Path];
    m_unsure.erase(note.Path);
    m_unsure.insert(note.To);
  }

  /// The older copy in /Backup is what a failed save falls back on.
  void Remove(const std::string& path) {
    const std::size_t backup = path.find("/Backup/");
    if (backup == std::string::npos) return;
    const std::string live = path.substr(0, backup) + path.substr(backup + 7);
    if (m_unsure.contains(live)) Say(path, "is dropped before the new file is sure");
    m_dropped.insert(live);
  }

  std::map<std::string, State> m_written;
  std::set<std::string> m_dropped;  ///< Files whose copy in /Backup is gone.
  std::set<std::string> m_unsure;   ///< Published, the folder not flushed since.
};

}  // namespace

QString OrderFaults(const std::vector<Note>& notes) {
  Follower follower;
  for (const Note& note : notes) follower.Follow(note);
  return follower.Faults;
}

void Sweep::Order() {
  for (const Note& note : m_bench.Unharmed().Notes) {
    if (note.What == Kind::Rename) ++m_findings.Counts[u"renames followed"_s];
  }
  m_findings.Add(m_bench, u"the order of its calls"_s, OrderFaults(m_bench.Unharmed().Notes));
}
