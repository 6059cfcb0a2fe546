#pragma once

#include "platform/Bin.h"

#include <QString>

#include <utility>

namespace pelorin::platform {

/// The real Bin, after the freedesktop.org Trash rules 1.0: the user's own bin, "Trash" below the
/// data folder; for what lies on another mount the one at the top of that ("<top>/.Trash/<uid>"
/// where an administrator made ".Trash", else "<top>/.Trash-<uid>"). Things are renamed, never copied, so
/// a failure leaves the source as it was. Refused besides a root: mount points, and folders that
/// hold one, since emptying the bin would empty what is mounted.
class XdgBin : public Bin {
public:
    /// The user's data folder, as QStandardPaths::GenericDataLocation gives it; made when it is
    /// missing.
    explicit XdgBin(QString dataHome)
        : m_dataHome(std::move(dataHome))
    {}

    Done MoveToBin(const QString& path) override;

private:
    QString m_dataHome;
};

} // namespace pelorin::platform
