#include "platform/decoder/Sandbox.h"

#include <linux/sched.h>
#include <seccomp.h>
#include <sys/ioctl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <unistd.h>

#include <fcntl.h>
#include <cerrno>
#include <initializer_list>

namespace decoder {
namespace {

// A film of 8192 by 4320 needs about half of it.
constexpr rlim_t kMostMemory = rlim_t{2} << 30;
constexpr rlim_t kMostFiles = 512;

// What the engine, the display's library and the sound client call while songs play.
constexpr int kAllowed[] = {
    // what is open already
    SCMP_SYS(read), SCMP_SYS(write), SCMP_SYS(readv), SCMP_SYS(writev), SCMP_SYS(pread64), SCMP_SYS(pwrite64),
    SCMP_SYS(preadv), SCMP_SYS(lseek), SCMP_SYS(close), SCMP_SYS(close_range), SCMP_SYS(fstat),
    SCMP_SYS(fstatfs), SCMP_SYS(getdents64), SCMP_SYS(fcntl), SCMP_SYS(flock), SCMP_SYS(dup), SCMP_SYS(dup2),
    SCMP_SYS(dup3), SCMP_SYS(fadvise64), SCMP_SYS(ftruncate), SCMP_SYS(fallocate), SCMP_SYS(sendfile),
    // what a name leads to, not what is in it
    SCMP_SYS(stat), SCMP_SYS(lstat), SCMP_SYS(newfstatat), SCMP_SYS(statx), SCMP_SYS(statfs),
    SCMP_SYS(access), SCMP_SYS(faccessat), SCMP_SYS(faccessat2), SCMP_SYS(readlink), SCMP_SYS(readlinkat),
    SCMP_SYS(getcwd),
    // waiting
    SCMP_SYS(pipe), SCMP_SYS(pipe2), SCMP_SYS(eventfd), SCMP_SYS(eventfd2), SCMP_SYS(poll), SCMP_SYS(ppoll),
    SCMP_SYS(select), SCMP_SYS(pselect6), SCMP_SYS(epoll_create), SCMP_SYS(epoll_create1),
    SCMP_SYS(epoll_ctl), SCMP_SYS(epoll_wait), SCMP_SYS(epoll_pwait), SCMP_SYS(futex), SCMP_SYS(futex_waitv),
    SCMP_SYS(timerfd_create), SCMP_SYS(timerfd_settime), SCMP_SYS(timerfd_gettime), SCMP_SYS(nanosleep),
    SCMP_SYS(clock_nanosleep), SCMP_SYS(pause),
    // memory
    SCMP_SYS(mmap), SCMP_SYS(munmap), SCMP_SYS(mprotect), SCMP_SYS(mremap), SCMP_SYS(madvise), SCMP_SYS(brk),
    SCMP_SYS(mincore), SCMP_SYS(mlock), SCMP_SYS(munlock), SCMP_SYS(membarrier), SCMP_SYS(memfd_create),
    SCMP_SYS(shmget), SCMP_SYS(shmat), SCMP_SYS(shmdt), SCMP_SYS(shmctl), SCMP_SYS(get_mempolicy),
    SCMP_SYS(msync),
    // threads and signals of its own
    SCMP_SYS(exit), SCMP_SYS(exit_group), SCMP_SYS(set_robust_list), SCMP_SYS(get_robust_list),
    SCMP_SYS(rseq), SCMP_SYS(set_tid_address), SCMP_SYS(gettid), SCMP_SYS(rt_sigaction),
    SCMP_SYS(rt_sigprocmask), SCMP_SYS(rt_sigreturn), SCMP_SYS(rt_sigtimedwait), SCMP_SYS(sigaltstack),
    SCMP_SYS(restart_syscall), SCMP_SYS(sched_yield), SCMP_SYS(sched_getaffinity), SCMP_SYS(sched_getparam),
    SCMP_SYS(sched_getattr), SCMP_SYS(sched_getscheduler), SCMP_SYS(sched_get_priority_max),
    SCMP_SYS(sched_get_priority_min), SCMP_SYS(getpriority), SCMP_SYS(setpriority),
    SCMP_SYS(sched_setscheduler), SCMP_SYS(getcpu), SCMP_SYS(arch_prctl), SCMP_SYS(timer_create),
    SCMP_SYS(timer_settime), SCMP_SYS(timer_delete),
    // who and when it is
    SCMP_SYS(getpid), SCMP_SYS(getppid), SCMP_SYS(getpgrp), SCMP_SYS(getuid), SCMP_SYS(geteuid),
    SCMP_SYS(getgid), SCMP_SYS(getegid), SCMP_SYS(getresuid), SCMP_SYS(getresgid), SCMP_SYS(getgroups),
    SCMP_SYS(getrlimit), SCMP_SYS(getrusage), SCMP_SYS(sysinfo), SCMP_SYS(uname), SCMP_SYS(times),
    SCMP_SYS(umask), SCMP_SYS(clock_gettime), SCMP_SYS(clock_getres), SCMP_SYS(gettimeofday), SCMP_SYS(time),
    SCMP_SYS(getrandom),
    // lines that are connected
    SCMP_SYS(socketpair), SCMP_SYS(sendto), SCMP_SYS(recvfrom), SCMP_SYS(sendmsg), SCMP_SYS(recvmsg),
    SCMP_SYS(sendmmsg), SCMP_SYS(recvmmsg), SCMP_SYS(shutdown), SCMP_SYS(getsockname), SCMP_SYS(getpeername),
    SCMP_SYS(getsockopt), SCMP_SYS(setsockopt)};

class Filter {
public:
    Filter() : context_(seccomp_init(SCMP_ACT_ERRNO(EPERM))) {}
    ~Filter() {
        if (context_ != nullptr) seccomp_release(context_);
    }
    Filter(const Filter&) = delete;
    Filter& operator=(const Filter&) = delete;

    // A call that this machine does not have is no matter.
    void Add(std::uint32_t action, int call, std::initializer_list<scmp_arg_cmp> when = {}) {
        seccomp_rule_add_array(context_, action, call, static_cast<unsigned>(when.size()), when.begin());
    }

    void AllowUsual(bool network) {
        for (const int call : kAllowed)
            Add(SCMP_ACT_ALLOW, call);
        Add(SCMP_ACT_ALLOW, SCMP_SYS(clone), {SCMP_A0(SCMP_CMP_MASKED_EQ, CLONE_THREAD, CLONE_THREAD)});
        // Its flags cannot be seen by a filter; without it threads are made by the other.
        Add(SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(clone3));
        Add(SCMP_ACT_ERRNO(ENOSYS), SCMP_SYS(openat2));
        // The sound client makes the folder of its server's socket, unless it is there.
        Add(SCMP_ACT_ERRNO(EEXIST), SCMP_SYS(mkdir));
        Add(SCMP_ACT_ALLOW, SCMP_SYS(tgkill), {SCMP_A0(SCMP_CMP_EQ, static_cast<scmp_datum_t>(getpid()))});
        Add(SCMP_ACT_ALLOW, SCMP_SYS(prlimit64), {SCMP_A0(SCMP_CMP_EQ, 0)});
        Add(SCMP_ACT_ALLOW, SCMP_SYS(ioctl), {SCMP_A1(SCMP_CMP_NE, TIOCSTI)});
        for (const scmp_datum_t what :
             {PR_SET_NAME, PR_GET_NAME, PR_SET_TIMERSLACK, PR_SET_VMA, PR_CAPBSET_READ})
            Add(SCMP_ACT_ALLOW, SCMP_SYS(prctl), {SCMP_A0(SCMP_CMP_EQ, what)});
        constexpr scmp_datum_t kKind = 0xF;
        if (network) return Add(SCMP_ACT_ALLOW, SCMP_SYS(socket));
        Add(SCMP_ACT_ALLOW, SCMP_SYS(socket),
            {SCMP_A0(SCMP_CMP_EQ, AF_UNIX), SCMP_A1(SCMP_CMP_MASKED_EQ, kKind, SOCK_STREAM)});
    }

    void Open(std::uint32_t action, std::uint32_t connecting) {
        Add(action, SCMP_SYS(open));
        Add(action, SCMP_SYS(openat));
        Add(connecting, SCMP_SYS(connect));
    }

    bool Load() {
        if (context_ == nullptr) return false;
        seccomp_attr_set(context_, SCMP_FLTATR_CTL_TSYNC, 1);
        seccomp_attr_set(context_, SCMP_FLTATR_CTL_OPTIMIZE, 2);
        return seccomp_load(context_) == 0;
    }
    int Requests() const { return seccomp_notify_fd(context_); }

private:
    scmp_filter_ctx context_;
};

bool Limit(__rlimit_resource what, rlim_t most) {
    rlimit limit{};
    if (getrlimit(what, &limit) != 0) return false;
    limit.rlim_max = limit.rlim_max == RLIM_INFINITY ? most : std::min(limit.rlim_max, most);
    limit.rlim_cur = limit.rlim_max;
    return setrlimit(what, &limit) == 0;
}

bool LoadAsking(bool network, Hello& hello) {
    Filter filter;
    filter.AllowUsual(network);
    filter.Open(SCMP_ACT_NOTIFY, network ? SCMP_ACT_ALLOW : SCMP_ACT_NOTIFY);
    if (!filter.Load()) return false;
    hello.requests = linux::Descriptor(fcntl(filter.Requests(), F_DUPFD_CLOEXEC, 0));
    close(filter.Requests());
    return true;
}

bool LoadWithoutAsking(bool network) {
    Filter filter;
    filter.AllowUsual(network);
    filter.Open(SCMP_ACT_ALLOW, SCMP_ACT_ALLOW);
    return filter.Load();
}

}  // namespace

Hello EnterSandbox(bool network) {
    Hello hello;
    Limit(RLIMIT_CORE, 0);
    Limit(RLIMIT_NOFILE, kMostFiles);
    if (!Limit(RLIMIT_DATA, kMostMemory)) hello.missing += " all of the memory;";
    if (network) hello.missing += " the network, where its display or sound server is;";
    if (LoadAsking(network, hello)) return hello;
    hello.missing += " reading files of the user;";
    if (!LoadWithoutAsking(network)) hello.missing += " all other calls of the system;";
    return hello;
}

}  // namespace decoder
