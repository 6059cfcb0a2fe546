#pragma once

namespace pelorin::platform {

class Bin;
class Desktop;
class Processes;
class Prompts;
class ShellVerbs;
class Timers;

/// What the program asks of the outside world. All are set, by main or by a test, and outlive
/// every user.
struct Ports {
    Processes& processes;
    ShellVerbs& shell;
    Bin& bin;
    Prompts& prompts;
    Timers& timers;
    Desktop& desktop;
};

} // namespace pelorin::platform
