#include "running/RunRequest.h"

namespace pelorin::running {

dosboxconf::ConfRequest ConfRequestOf(const RunRequest& request, const QString& build)
{
    dosboxconf::ConfRequest conf;
    conf.folder = request.folder;
    conf.title = request.title;
    conf.build = build;
    conf.mountRoot = request.mode == RunMode::LibraryShell;
    conf.ipx = request.mode == RunMode::NetHost || request.mode == RunMode::NetClient;
    if (request.mode == RunMode::NetClient) {
        conf.ipxAddress = request.ipxAddress;
    }
    conf.serverPort = request.serverPort;
    conf.cd = request.cd;
    return conf;
}

} // namespace pelorin::running
