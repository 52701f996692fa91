/// The mark of a running program, one per data root, kept outside it.
#pragma once

#include <memory>
#include <QString>

class FileStore;
class QLockFile;

class PreviousInstance {
 public:
  /// `lockFolder` is made when the mark is set.
  PreviousInstance(FileStore& store, const QString& lockFolder, const QString& dataRoot);
  ~PreviousInstance();

  /// Sets the mark; false where another running program holds it. The mark of a program that was killed is taken over.
  /// A mark that can't be set for another reason keeps nobody from working.
  bool Claim();
  void Release();

 private:
  FileStore& m_store;
  QString m_folder;
  std::unique_ptr<QLockFile> m_lock;
};
