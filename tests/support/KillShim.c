// Loaded with LD_PRELOAD into a process under test. Counts the calls that
// change files below one folder (opens, writes, flushes, closes, renames,
// links, removals, new folders) and kills the process with SIGKILL just
// before the Nth, as a crash or a kill -9 would at that moment.
//
//   KEELHOLD_KILL_PREFIX   the folder whose files count (absolute path)
//   KEELHOLD_KILL_AT       N; unset or 0 counts without killing
//   KEELHOLD_KILL_REPORT   file that receives the number of calls counted,
//                          written when the process exits normally
//
// Before the kill, one line naming the call goes to stderr.
#define _GNU_SOURCE
#include <dlfcn.h>
#include <fcntl.h>
#include <limits.h>
#include <signal.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/types.h>
#include <sys/uio.h>
#include <unistd.h>

enum { trackedFds = 65536 };

static char prefix[PATH_MAX];
static size_t prefixLength;
static long killAt;
static atomic_long calls;
static atomic_bool tracked[trackedFds];

// The next definition of a function: libc's, or a sanitizer's in front of it.
#define REAL(name)                                                                                                     \
    ({                                                                                                                 \
        static __typeof__(&name) fn;                                                                                   \
        if (!fn)                                                                                                       \
            fn = (__typeof__(&name))dlsym(RTLD_NEXT, #name);                                                           \
        fn;                                                                                                            \
    })

__attribute__((constructor)) static void setUp(void)
{
    const char *p = getenv("KEELHOLD_KILL_PREFIX");
    if (p && *p && strlen(p) < sizeof prefix) {
        strcpy(prefix, p);
        prefixLength = strlen(prefix);
        while (prefixLength > 1 && prefix[prefixLength - 1] == '/')
            prefix[--prefixLength] = '\0';
    }
    const char *n = getenv("KEELHOLD_KILL_AT");
    killAt = n ? atol(n) : 0;
}

__attribute__((destructor)) static void report(void)
{
    const char *path = getenv("KEELHOLD_KILL_REPORT");
    if (!path || !*path)
        return;
    FILE *f = fopen(path, "w");
    if (!f)
        return;
    fprintf(f, "%ld\n", atomic_load(&calls));
    fclose(f);
}

static void say(const char *text)
{
    if (REAL(write)(2, text, strlen(text)) < 0)
        return;
}

// One counted call; the Nth never happens.
static void countCall(const char *call, const char *path)
{
    const long n = atomic_fetch_add(&calls, 1) + 1;
    if (killAt <= 0 || n != killAt)
        return;
    char line[PATH_MAX + 128];
    snprintf(line, sizeof line, "killed before call %ld: %s %s\n", n, call, path ? path : "");
    say(line);
    kill(getpid(), SIGKILL);
    for (;;)
        pause();
}

static int isBelowPrefix(const char *absolute)
{
    return prefixLength > 0 && strncmp(absolute, prefix, prefixLength) == 0
        && (absolute[prefixLength] == '/' || absolute[prefixLength] == '\0');
}

// Whether path, seen from dirfd, lies in the watched folder.
static int watched(int dirfd, const char *path)
{
    if (!path || prefixLength == 0)
        return 0;
    if (path[0] == '/')
        return isBelowPrefix(path);
    char base[PATH_MAX];
    if (dirfd == AT_FDCWD) {
        if (!getcwd(base, sizeof base))
            return 0;
    } else {
        char link[64];
        snprintf(link, sizeof link, "/proc/self/fd/%d", dirfd);
        const ssize_t n = readlink(link, base, sizeof base - 1);
        if (n < 0)
            return 0;
        base[n] = '\0';
    }
    char full[PATH_MAX * 2];
    snprintf(full, sizeof full, "%s/%s", base, path);
    return isBelowPrefix(full);
}

static int isTracked(int fd)
{
    return fd >= 0 && fd < trackedFds && atomic_load(&tracked[fd]);
}

static void track(int fd, int on)
{
    if (fd >= 0 && fd < trackedFds)
        atomic_store(&tracked[fd], on);
}

// Counts an open of a watched path and follows its descriptor; a number reused after an unseen close starts afresh.
// All four opens go to the next openat: open(path) is openat(AT_FDCWD, path).
static int openWatched(const char *call, int dirfd, const char *path, int flags, mode_t mode)
{
    const int isWatched = watched(dirfd, path);
    if (isWatched)
        countCall(call, path);
    const int fd = REAL(openat)(dirfd, path, flags, mode);
    track(fd, isWatched);
    return fd;
}

// The mode argument is there only with O_CREAT or O_TMPFILE.
#define OPEN_WRAPPER(name, dirfd)                                                                                      \
    {                                                                                                                  \
        mode_t mode = 0;                                                                                               \
        if ((flags & O_CREAT) || (flags & __O_TMPFILE) == __O_TMPFILE) {                                               \
            va_list args;                                                                                              \
            va_start(args, flags);                                                                                     \
            mode = (mode_t)va_arg(args, int);                                                                          \
            va_end(args);                                                                                              \
        }                                                                                                              \
        return openWatched(#name, dirfd, path, flags, mode);                                                           \
    }

int open(const char *path, int flags, ...) OPEN_WRAPPER(open, AT_FDCWD)
int open64(const char *path, int flags, ...) OPEN_WRAPPER(open64, AT_FDCWD)
int openat(int dirfd, const char *path, int flags, ...) OPEN_WRAPPER(openat, dirfd)
int openat64(int dirfd, const char *path, int flags, ...) OPEN_WRAPPER(openat64, dirfd)

int close(int fd)
{
    if (isTracked(fd)) {
        countCall("close", NULL);
        track(fd, 0);
    }
    return REAL(close)(fd);
}

// A call on a descriptor opened in the watched folder.
#define ON_TRACKED_FD(name, ...)                                                                                       \
    {                                                                                                                  \
        if (isTracked(fd))                                                                                             \
            countCall(#name, NULL);                                                                                    \
        return REAL(name)(fd, ##__VA_ARGS__);                                                                          \
    }

ssize_t write(int fd, const void *data, size_t size) ON_TRACKED_FD(write, data, size)
ssize_t pwrite(int fd, const void *data, size_t size, off_t at) ON_TRACKED_FD(pwrite, data, size, at)
ssize_t pwrite64(int fd, const void *data, size_t size, off64_t at) ON_TRACKED_FD(pwrite64, data, size, at)
ssize_t writev(int fd, const struct iovec *iov, int count) ON_TRACKED_FD(writev, iov, count)
int ftruncate(int fd, off_t length) ON_TRACKED_FD(ftruncate, length)
int ftruncate64(int fd, off64_t length) ON_TRACKED_FD(ftruncate64, length)
int fallocate(int fd, int mode, off_t offset, off_t length) ON_TRACKED_FD(fallocate, mode, offset, length)
int fchmod(int fd, mode_t mode) ON_TRACKED_FD(fchmod, mode)

int fsync(int fd) ON_TRACKED_FD(fsync)
int fdatasync(int fd) ON_TRACKED_FD(fdatasync)

// A call that names a path, or two: counted when one lies in the watched folder.
#define ON_WATCHED_PATHS(name, fromDir, from, toDir, to, ...)                                                         \
    {                                                                                                                  \
        if (watched(fromDir, from) || watched(toDir, to))                                                              \
            countCall(#name, to);                                                                                      \
        return REAL(name)(__VA_ARGS__);                                                                                \
    }

int rename(const char *from, const char *to) ON_WATCHED_PATHS(rename, AT_FDCWD, from, AT_FDCWD, to, from, to)
int renameat(int fromDir, const char *from, int toDir, const char *to)
    ON_WATCHED_PATHS(renameat, fromDir, from, toDir, to, fromDir, from, toDir, to)
int renameat2(int fromDir, const char *from, int toDir, const char *to, unsigned flags)
    ON_WATCHED_PATHS(renameat2, fromDir, from, toDir, to, fromDir, from, toDir, to, flags)
// A link made outside from inside changes nothing here.
int link(const char *from, const char *to) ON_WATCHED_PATHS(link, AT_FDCWD, NULL, AT_FDCWD, to, from, to)
int linkat(int fromDir, const char *from, int toDir, const char *to, int flags)
    ON_WATCHED_PATHS(linkat, fromDir, NULL, toDir, to, fromDir, from, toDir, to, flags)
int unlink(const char *path) ON_WATCHED_PATHS(unlink, AT_FDCWD, NULL, AT_FDCWD, path, path)
int unlinkat(int dirfd, const char *path, int flags) ON_WATCHED_PATHS(unlinkat, dirfd, NULL, dirfd, path, dirfd, path, flags)
int remove(const char *path) ON_WATCHED_PATHS(remove, AT_FDCWD, NULL, AT_FDCWD, path, path)
int rmdir(const char *path) ON_WATCHED_PATHS(rmdir, AT_FDCWD, NULL, AT_FDCWD, path, path)
int mkdir(const char *path, mode_t mode) ON_WATCHED_PATHS(mkdir, AT_FDCWD, NULL, AT_FDCWD, path, path, mode)
int mkdirat(int dirfd, const char *path, mode_t mode) ON_WATCHED_PATHS(mkdirat, dirfd, NULL, dirfd, path, dirfd, path, mode)
