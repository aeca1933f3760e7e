// Simulates a kernel without move_mount.
// SPDX-License-Identifier: MIT
#include "tests/tools/mount-tool/OldKernel.h"

#include <linux/filter.h>
#include <linux/seccomp.h>
#include <sys/prctl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstddef>

namespace brisel::tests {

int startOnOldKernel(char** arguments) {
    constexpr auto Number = static_cast<unsigned>(offsetof(seccomp_data, nr));
    std::array program{
        sock_filter{BPF_LD | BPF_W | BPF_ABS, 0, 0, Number},
        sock_filter{BPF_JMP | BPF_JEQ | BPF_K, 0, 1, SYS_move_mount},
        sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ERRNO | ENOSYS},
        sock_filter{BPF_RET | BPF_K, 0, 0, SECCOMP_RET_ALLOW},
    };
    const sock_fprog filter{program.size(), program.data()};
    constexpr int CannotStart = 125;
    if (prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0) != 0) return CannotStart;
    if (prctl(PR_SET_SECCOMP, SECCOMP_MODE_FILTER, &filter) != 0) return CannotStart;
    execvp(arguments[0], arguments);
    return CannotStart;
}

}  // namespace brisel::tests
