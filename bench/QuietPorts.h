#pragma once

#include "platform/Bin.h"
#include "platform/Desktop.h"
#include "platform/Ports.h"
#include "platform/Processes.h"
#include "platform/Prompts.h"
#include "platform/QtTimers.h"
#include "platform/ShellVerbs.h"

namespace pelorin::bench {

// Ports for measuring commands: nothing outside is started, nobody is there to answer.

class NoProcesses : public platform::Processes {
public:
    platform::Done StartDetached(
        const platform::ProcessRequest& request,
        std::function<void(const platform::ProcessEnd&)> /*ended*/) override
    {
        return platform::Error{platform::ErrorKind::Refused, request.program};
    }
    platform::Outcome<platform::ProcessEnd> RunAndWait(
        const platform::ProcessRequest& request) override
    {
        return platform::Error{platform::ErrorKind::Refused, request.program};
    }
};

class NoShellVerbs : public platform::ShellVerbs {
public:
    platform::Done Open(const QString& path) override
    {
        return platform::Error{platform::ErrorKind::Refused, path};
    }
    platform::Done OpenUrl(const QString& url) override
    {
        return platform::Error{platform::ErrorKind::Refused, url};
    }
};

class NoBin : public platform::Bin {
public:
    platform::Done MoveToBin(const QString& path) override
    {
        return platform::Error{platform::ErrorKind::Refused, path};
    }
};

class NoPrompts : public platform::Prompts {
public:
    platform::Answer Ask(const platform::MessageBox& /*box*/) override
    {
        return platform::Answer::Cancel;
    }
    QString InputText(const QString&, const QString&, const QString&) override { return {}; }
    QString ChooseFolder(const QString&, const QString&) override { return {}; }
    QString OpenFile(const platform::FileDialog&) override { return {}; }
    QString SaveFile(const platform::FileDialog&) override { return {}; }
    void ShowReport(const QString&, const QString&) override {}
};

class NoDesktop : public platform::Desktop {
public:
    bool NumLockOn() override { return false; }
    std::optional<platform::WindowId> FindWindow(const QString&) override { return {}; }
    std::optional<platform::WindowPlace> PlaceOf(platform::WindowId) override { return {}; }
    void Move(platform::WindowId, QPoint) override {}
    void BringToFront(platform::WindowId) override {}
};

struct QuietPorts {
    NoProcesses processes;
    NoShellVerbs shell;
    NoBin bin;
    NoPrompts prompts;
    platform::QtTimers timers;
    NoDesktop desktop;
    platform::Ports ports{processes, shell, bin, prompts, timers, desktop};

    QuietPorts() = default;
    QuietPorts(const QuietPorts&) = delete; // `ports` points into this one
    QuietPorts& operator=(const QuietPorts&) = delete;
};

} // namespace pelorin::bench
