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

static mode_t modeArgument(int flags, va_list args)
{
    return (flags & O_CREAT) || (flags & __O_TMPFILE) == __O_TMPFILE ? (mode_t)va_arg(args, int) : 0;
}

// Counts an open of a watched path, and follows the descriptor it gives.
static int opened(int fd, int isWatched)
{
    // A number reused after a close that didn't pass here starts afresh.
    track(fd, isWatched);
    return fd;
}

int open(const char *path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeArgument(flags, args);
    va_end(args);
    const int isWatched = watched(AT_FDCWD, path);
    if (isWatched)
        countCall("open", path);
    return opened(REAL(open)(path, flags, mode), isWatched);
}

int open64(const char *path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeArgument(flags, args);
    va_end(args);
    const int isWatched = watched(AT_FDCWD, path);
    if (isWatched)
        countCall("open64", path);
    return opened(REAL(open64)(path, flags, mode), isWatched);
}

int openat(int dirfd, const char *path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeArgument(flags, args);
    va_end(args);
    const int isWatched = watched(dirfd, path);
    if (isWatched)
        countCall("openat", path);
    return opened(REAL(openat)(dirfd, path, flags, mode), isWatched);
}

int openat64(int dirfd, const char *path, int flags, ...)
{
    va_list args;
    va_start(args, flags);
    const mode_t mode = modeArgument(flags, args);
    va_end(args);
    const int isWatched = watched(dirfd, path);
    if (isWatched)
        countCall("openat64", path);
    return opened(REAL(openat64)(dirfd, path, flags, mode), isWatched);
}

int close(int fd)
{
    if (isTracked(fd)) {
        countCall("close", NULL);
        track(fd, 0);
    }
    return REAL(close)(fd);
}

ssize_t write(int fd, const void *data, size_t size)
{
    if (isTracked(fd))
        countCall("write", NULL);
    return REAL(write)(fd, data, size);
}

ssize_t pwrite(int fd, const void *data, size_t size, off_t offset)
{
    if (isTracked(fd))
        countCall("pwrite", NULL);
    return REAL(pwrite)(fd, data, size, offset);
}

ssize_t pwrite64(int fd, const void *data, size_t size, off64_t offset)
{
    if (isTracked(fd))
        countCall("pwrite64", NULL);
    return REAL(pwrite64)(fd, data, size, offset);
}

ssize_t writev(int fd, const struct iovec *iov, int count)
{
    if (isTracked(fd))
        countCall("writev", NULL);
    return REAL(writev)(fd, iov, count);
}

int fsync(int fd)
{
    if (isTracked(fd))
        countCall("fsync", NULL);
    return REAL(fsync)(fd);
}

int fdatasync(int fd)
{
    if (isTracked(fd))
        countCall("fdatasync", NULL);
    return REAL(fdatasync)(fd);
}

int ftruncate(int fd, off_t length)
{
    if (isTracked(fd))
        countCall("ftruncate", NULL);
    return REAL(ftruncate)(fd, length);
}

int ftruncate64(int fd, off64_t length)
{
    if (isTracked(fd))
        countCall("ftruncate64", NULL);
    return REAL(ftruncate64)(fd, length);
}

int fallocate(int fd, int mode, off_t offset, off_t length)
{
    if (isTracked(fd))
        countCall("fallocate", NULL);
    return REAL(fallocate)(fd, mode, offset, length);
}

int fchmod(int fd, mode_t mode)
{
    if (isTracked(fd))
        countCall("fchmod", NULL);
    return REAL(fchmod)(fd, mode);
}

int rename(const char *from, const char *to)
{
    if (watched(AT_FDCWD, from) || watched(AT_FDCWD, to))
        countCall("rename", to);
    return REAL(rename)(from, to);
}

int renameat(int fromDir, const char *from, int toDir, const char *to)
{
    if (watched(fromDir, from) || watched(toDir, to))
        countCall("renameat", to);
    return REAL(renameat)(fromDir, from, toDir, to);
}

int renameat2(int fromDir, const char *from, int toDir, const char *to, unsigned flags)
{
    if (watched(fromDir, from) || watched(toDir, to))
        countCall("renameat2", to);
    return REAL(renameat2)(fromDir, from, toDir, to, flags);
}

int link(const char *from, const char *to)
{
    if (watched(AT_FDCWD, to))
        countCall("link", to);
    return REAL(link)(from, to);
}

int linkat(int fromDir, const char *from, int toDir, const char *to, int flags)
{
    if (watched(toDir, to))
        countCall("linkat", to);
    return REAL(linkat)(fromDir, from, toDir, to, flags);
}

int unlink(const char *path)
{
    if (watched(AT_FDCWD, path))
        countCall("unlink", path);
    return REAL(unlink)(path);
}

int unlinkat(int dirfd, const char *path, int flags)
{
    if (watched(dirfd, path))
        countCall("unlinkat", path);
    return REAL(unlinkat)(dirfd, path, flags);
}

int remove(const char *path)
{
    if (watched(AT_FDCWD, path))
        countCall("remove", path);
    return REAL(remove)(path);
}

int rmdir(const char *path)
{
    if (watched(AT_FDCWD, path))
        countCall("rmdir", path);
    return REAL(rmdir)(path);
}

int mkdir(const char *path, mode_t mode)
{
    if (watched(AT_FDCWD, path))
        countCall("mkdir", path);
    return REAL(mkdir)(path, mode);
}

int mkdirat(int dirfd, const char *path, mode_t mode)
{
    if (watched(dirfd, path))
        countCall("mkdirat", path);
    return REAL(mkdirat)(dirfd, path, mode);
}
