#pragma once

#include <gtest/gtest.h>
#include <linux/ptrace.h> // the C library's own header lacks the system call's number
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <csignal>
#include <functional>

namespace pelorin::test {

inline long Trace(int request, pid_t child, unsigned long address, unsigned long data)
{
    return syscall(SYS_ptrace, request, child, address, data);
}

/// Whether the child stands before a call that changes files.
inline bool StandsAtFileCall(pid_t child)
{
    static constexpr std::array kFileCalls{
        SYS_open,    SYS_openat,    SYS_creat,    SYS_write,    SYS_pwrite64,  SYS_writev,
        SYS_fsync,   SYS_fdatasync, SYS_rename,   SYS_renameat, SYS_renameat2, SYS_link,
        SYS_linkat,  SYS_unlink,    SYS_unlinkat, SYS_truncate, SYS_ftruncate, SYS_mkdir,
        SYS_mkdirat, SYS_rmdir,     SYS_chmod,    SYS_fchmod,   SYS_sendfile,  SYS_copy_file_range,
    };
    ptrace_syscall_info info{};
    const long known =
        Trace(PTRACE_GET_SYSCALL_INFO, child, sizeof info, reinterpret_cast<unsigned long>(&info));
    return known > 0 && info.op == PTRACE_SYSCALL_INFO_ENTRY &&
           std::count(kFileCalls.begin(), kFileCalls.end(), static_cast<long>(info.entry.nr)) != 0;
}

/// Runs `work` in a process of its own that shares no memory with this one, and kills it, as if the
/// power went, at the system call number `call` (from 0) that changes a file or its name: before
/// it is done. True when it was killed there; false when `work` came to its end before.
inline bool KillAtFileCall(int call, const std::function<void()>& work)
{
    const pid_t child = fork();
    if (child == 0) {
        Trace(PTRACE_TRACEME, 0, 0, 0);
        raise(SIGSTOP);
        work();
        _exit(0);
    }
    int status = 0;
    int seen = 0;
    while (waitpid(child, &status, 0) == child && WIFSTOPPED(status)) {
        const int stop = WSTOPSIG(status);
        if (stop == (SIGTRAP | 0x80) && StandsAtFileCall(child) && seen++ == call) {
            kill(child, SIGKILL);
            waitpid(child, &status, 0);
            return true;
        }
        if (stop == SIGSTOP) {
            Trace(PTRACE_SETOPTIONS, child, 0, PTRACE_O_TRACESYSGOOD | PTRACE_O_EXITKILL);
        }
        const bool ours = stop == SIGSTOP || stop == (SIGTRAP | 0x80);
        Trace(PTRACE_SYSCALL, child, 0, ours ? 0 : static_cast<unsigned long>(stop));
    }
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << "the work failed by itself";
    return false;
}

} // namespace pelorin::test
