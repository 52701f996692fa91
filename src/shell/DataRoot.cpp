#include "shell/DataRoot.h"

#include <QFileInfo>

#include "runtime/FileStore.h"
#include "runtime/RuntimeError.h"

using namespace Qt::StringLiterals;

namespace {

void MakeFolders(FileStore& store, const QString& folder) {
  if (store.IsFolder(folder)) return;
  const QString parent = QFileInfo(folder).path();
  if (parent != folder) MakeFolders(store, parent);
  store.MakeFolder(folder);
}

}  // namespace

QString ChooseDataRoot(FileDevice& files, const QString& programFolder, const QString& userDataFolder) {
  if (files.MayWrite(programFolder) == 0) return programFolder;
  const QString root = userDataFolder + u"/KarvexInvoicer"_s;
  FileStore store(files);
  MakeFolders(store, root);
  const QString supplied = u"/StatesList.txt"_s;
  if (!store.IsFile(root + supplied) && store.IsFile(programFolder + supplied)) {
    store.Copy(programFolder + supplied, root + supplied);
  }
  return root;
}
