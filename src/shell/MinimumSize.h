#pragma once

namespace pelorin::shell {

/// Stored geometry is in form units, 15 to a pixel whatever the screen's real ratio is.
inline constexpr double kUnitsPerPixel = 15;

/// What the smallest main window is made of, in form units.
struct FrameParts {
    double cmdVespraLeft = 0;
    double cmdVespraWidth = 0;
    double picBack1Width = 0;
    double picInfo0Left = 0;
    double outerWidth = 0; // the window with its frame
    double innerWidth = 0;
    double tabInfoHeight = 0;
    double sbDirectoryHeight = 0;
    double outerHeight = 0;
    double innerHeight = 0;
};

struct PixelSize {
    int width = 0;
    int height = 0;
};

/// The smallest outer size of the main window.
PixelSize MinimumSize(const FrameParts& parts);

} // namespace pelorin::shell
