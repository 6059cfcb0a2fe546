#pragma once

#include <QHash>
#include <QString>
#include <QStringList>

namespace pelorin::test {

/// Writes down what is opened in some folders, by the kernel's word: each listing of a folder (its
/// path with a slash) and each opening of a file of it, as often as it happens.
class FolderWatch {
public:
    explicit FolderWatch(const QStringList& folders);
    ~FolderWatch();
    FolderWatch(const FolderWatch&) = delete;
    FolderWatch& operator=(const FolderWatch&) = delete;

    /// What was opened since the last call.
    QStringList Opened() const;

private:
    int m_descriptor = -1;
    QHash<int, QString> m_folders;
};

} // namespace pelorin::test
