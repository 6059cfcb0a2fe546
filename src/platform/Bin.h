#pragma once

#include "platform/Outcome.h"

#include <QString>

namespace pelorin::platform {

/// The desktop's recycle bin.
class Bin {
public:
    virtual ~Bin() = default;

    /// Moves a file or a folder with all it holds to the bin. Success is proved: the source is
    /// gone and the thing lies under a Trash folder. On any error the source is whole again where
    /// it was. A link is moved as a link. Refused for a file system's root.
    virtual Done MoveToBin(const QString& path) = 0;
};

} // namespace pelorin::platform
