/// A folder around every temporary tree that a test makes from now on, deep enough that names with a few `..` still end
/// in it: what the program writes outside its data root stands there. Make it before the fixture.
#pragma once

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QMap>
#include <QTemporaryDir>
#include <QtTest>

class Surroundings {
 public:
  Surroundings() : m_before(qgetenv("TMPDIR")) {
    QDir(m_outer.path()).mkpath(QStringLiteral("a/b/c/d"));
    qputenv("TMPDIR", QFile::encodeName(Inner()));
    Put(m_outer.path() + QStringLiteral("/secret.txt"), "a secret");
    Put(Inner() + QStringLiteral("/secret.txt"), "a secret");
  }
  ~Surroundings() {
    if (m_before.isNull()) {
      qunsetenv("TMPDIR");
    } else {
      qputenv("TMPDIR", m_before);
    }
  }
  Q_DISABLE_COPY_MOVE(Surroundings)

  /// Notes what stands outside these roots now.
  void Watch(const QStringList& roots) {
    m_roots = roots;
    m_seen = Outside();
  }
  /// What came, went or changed outside since then; empty when nothing did.
  QStringList Changes() const {
    QStringList changes;
    const auto now = Outside();
    for (auto it = now.cbegin(); it != now.cend(); ++it) {
      if (!m_seen.contains(it.key())) {
        changes << QStringLiteral("new: ") + it.key();
      } else if (m_seen.value(it.key()) != it.value()) {
        changes << QStringLiteral("changed: ") + it.key();
      }
    }
    for (auto it = m_seen.cbegin(); it != m_seen.cend(); ++it) {
      if (!now.contains(it.key())) changes << QStringLiteral("gone: ") + it.key();
    }
    return changes;
  }

 private:
  QString Inner() const { return m_outer.path() + QStringLiteral("/a/b/c/d"); }
  static void Put(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("a test file isn't written");
  }
  /// Every file with its bytes, every folder, every link with its target.
  QMap<QString, QByteArray> Outside() const {
    QMap<QString, QByteArray> all;
    QDirIterator entries(m_outer.path(), QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot,
                         QDirIterator::Subdirectories);
    while (entries.hasNext()) {
      const QString path = entries.next();
      const bool inside = std::any_of(m_roots.cbegin(), m_roots.cend(), [&](const QString& root) {
        return path == root || path.startsWith(root + u'/');
      });
      if (!inside) all.insert(path, StateOf(path));
    }
    return all;
  }
  static QByteArray StateOf(const QString& path) {
    const QFileInfo info(path);
    if (info.isSymLink()) return "link to " + info.symLinkTarget().toUtf8();
    if (info.isDir()) return "folder";
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? "file: " + file.readAll() : QByteArray("no file");
  }

  QByteArray m_before;
  QTemporaryDir m_outer;
  QStringList m_roots;
  QMap<QString, QByteArray> m_seen;
};
