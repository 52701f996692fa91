#include "shell/DataRoot.h"

#include "runtime/FileStore.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

QString ChooseDataRoot(FileDevice& files, const QString& programFolder, const QString& userDataFolder) {
  if (files.MayWrite(programFolder) == 0) return programFolder;
  const QString root = userDataFolder + u"/KarvexInvoicer"_s;
  FileStore store(files);
  store.MakePath(root);
  const QString supplied = u"/StatesList.txt"_s;
  if (!store.IsFile(root + supplied) && store.IsFile(programFolder + supplied)) {
    store.Copy(programFolder + supplied, root + supplied);
  }
  return root;
}
