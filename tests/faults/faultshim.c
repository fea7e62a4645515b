/* Preloaded into a program under test, makes one of its file-system calls fail: the MIRRIX_FAULT_AT-th call, counted
   from 1, that concerns something below one of the folders MIRRIX_FAULT_FOLDERS (with colons between them) fails with
   the error number MIRRIX_FAULT_ERRNO; error 0 stands for a read or write of half the length. With MIRRIX_FAULT_STICKY
   all later calls fail too, as on a drive that has gone. With MIRRIX_FAULT_CUT the power fails at that call: what was
   written into files there and not flushed is gone, as file systems have it that keep names in order but not contents;
   so is the content of the files MIRRIX_FAULT_UNFLUSHED (with colons between them), written before the program began.
   With MIRRIX_FAULT_PLAIN_RENAME the file systems cannot rename without replacing, with the value "2" hard links
   neither; with MIRRIX_FAULT_NO_LEASES they have no leases. With MIRRIX_FAULT_NO_THREADS the system refuses every
   further thread. The name of the call is written to MIRRIX_FAULT_REPORT, which is not made when the program ended
   before. */

#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <pthread.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <sys/types.h>
#include <unistd.h>

#define NEXT(name)                                                                                                     \
    static __typeof__(name) *next;                                                                                     \
    if (!next)                                                                                                         \
    *(void **)&next = dlsym(RTLD_NEXT, #name)

static const char *folders;
static long failAt;
static int failure;
static int isSticky;
static int isCut;
static int plainness;
static int hasNoLeases;
static atomic_long calls;

/* The files with content that a power failure would take: an own descriptor of each, which does not count as open for
   writing. */
static struct
{
    dev_t device;
    ino_t number;
    int file;
} unflushed[1024];
static size_t unflushedCount;
static pthread_mutex_t unflushedLock = PTHREAD_MUTEX_INITIALIZER;

static void noteContent(int file, int isFlushed);

static void noteEarlierContents(void)
{
    const char *paths = getenv("MIRRIX_FAULT_UNFLUSHED");
    char *list = paths ? strdup(paths) : NULL;
    for (char *rest, *path = list ? strtok_r(list, ":", &rest) : NULL; path; path = strtok_r(NULL, ":", &rest)) {
        const int file = (int)syscall(SYS_openat, AT_FDCWD, path, O_PATH | O_CLOEXEC);
        noteContent(file, 0);
        syscall(SYS_close, file);
    }
    free(list);
}

__attribute__((constructor)) static void readPlan(void)
{
    const char *at = getenv("MIRRIX_FAULT_AT");
    const char *code = getenv("MIRRIX_FAULT_ERRNO");
    folders = getenv("MIRRIX_FAULT_FOLDERS");
    failAt = at ? atol(at) : 0;
    failure = code ? atoi(code) : EIO;
    isSticky = getenv("MIRRIX_FAULT_STICKY") != NULL;
    const char *plain = getenv("MIRRIX_FAULT_PLAIN_RENAME");
    plainness = plain ? atoi(plain) : 0;
    isCut = getenv("MIRRIX_FAULT_CUT") != NULL;
    hasNoLeases = getenv("MIRRIX_FAULT_NO_LEASES") != NULL;
    noteEarlierContents();
}

static int isBelow(const char *path)
{
    const char *folder = failAt > 0 ? folders : NULL;
    while (folder && *folder) {
        const size_t length = strcspn(folder, ":");
        if (path && strncmp(path, folder, length) == 0 && (path[length] == '/' || path[length] == '\0'))
            return 1;
        folder += length + (folder[length] == ':');
    }
    return 0;
}

static int isOpenBelow(int file)
{
    char link[64];
    char path[PATH_MAX];
    snprintf(link, sizeof link, "/proc/self/fd/%d", file);
    const int before = errno;
    const ssize_t length = readlink(link, path, sizeof path - 1);
    errno = before;
    if (length <= 0)
        return 0;
    path[length] = '\0';
    return isBelow(path);
}

static int isAtBelow(int folder, const char *path)
{
    return path && path[0] == '/' ? isBelow(path) : folder != AT_FDCWD && isOpenBelow(folder);
}

static void report(const char *name)
{
    const char *path = getenv("MIRRIX_FAULT_REPORT");
    FILE *file = path ? fopen(path, "a") : NULL;
    if (!file)
        return;
    fprintf(file, "%s\n", name);
    fclose(file);
}

/* Enters a file into the table, or takes it out. */
static void noteContent(int file, int isFlushed)
{
    NEXT(fstat64);
    struct stat64 info;
    char path[64];
    if (!isCut || next(file, &info) != 0)
        return;
    pthread_mutex_lock(&unflushedLock);
    size_t at = 0;
    while (at < unflushedCount && (unflushed[at].device != info.st_dev || unflushed[at].number != info.st_ino))
        ++at;
    if (isFlushed && at < unflushedCount) {
        unflushed[at] = unflushed[--unflushedCount];
    } else if (!isFlushed && at == unflushedCount) {
        if (at == sizeof unflushed / sizeof unflushed[0])
            abort();
        unflushed[at].device = info.st_dev;
        unflushed[at].number = info.st_ino;
        snprintf(path, sizeof path, "/proc/self/fd/%d", file);
        unflushed[at].file = (int)syscall(SYS_openat, AT_FDCWD, path, O_PATH | O_CLOEXEC);
        ++unflushedCount;
    }
    pthread_mutex_unlock(&unflushedLock);
}

static void cutPower(void)
{
    pthread_mutex_lock(&unflushedLock);
    for (int file = 0; file < 1024; ++file) /* the program's own leases would make the truncating wait */
        syscall(SYS_fcntl, file, F_SETLEASE, F_UNLCK);
    for (size_t at = 0; at < unflushedCount; ++at) {
        char path[64];
        snprintf(path, sizeof path, "/proc/self/fd/%d", unflushed[at].file);
        if (syscall(SYS_truncate, path, 0L) != 0)
            abort();
    }
    _exit(137);
}

/* Counts a call; whether it is the one to fail. */
static int isDue(const char *name)
{
    const long number = atomic_fetch_add(&calls, 1) + 1;
    if (number != failAt && !(isSticky && number > failAt))
        return 0;
    if (number == failAt)
        report(name);
    if (isCut)
        cutPower();
    return 1;
}

static int fails(const char *name)
{
    if (!isDue(name) || failure == 0)
        return 0;
    errno = failure;
    return 1;
}

/* isUnable: the file systems there do not know the call and say so with the error number. */
#define WRAP_UNKNOWN(result, name, parameters, arguments, isHit, isUnable, number)                                     \
    result name parameters                                                                                             \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        const int isOurs = isHit;                                                                                      \
        if (isOurs && fails(#name))                                                                                    \
            return -1;                                                                                                 \
        if (isOurs && (isUnable)) {                                                                                    \
            errno = number;                                                                                            \
            return -1;                                                                                                 \
        }                                                                                                              \
        return next arguments;                                                                                         \
    }

#define WRAP(result, name, parameters, arguments, isHit) WRAP_UNKNOWN(result, name, parameters, arguments, isHit, 0, 0)

#define WRAP_OPEN(name, parameters, arguments, isHit)                                                                  \
    int name parameters                                                                                                \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        va_list rest;                                                                                                  \
        va_start(rest, flags);                                                                                         \
        const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) ? va_arg(rest, mode_t) : 0;                                \
        va_end(rest);                                                                                                  \
        if ((isHit) && fails(#name))                                                                                   \
            return -1;                                                                                                 \
        return next arguments;                                                                                         \
    }

/* Halves the length instead of failing when the error number is 0. */
#define WRAP_TRANSFER(name, parameters, arguments, isWrite)                                                            \
    ssize_t name parameters                                                                                            \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        if (isOpenBelow(file) && isDue(#name)) {                                                                       \
            if (failure != 0) {                                                                                        \
                errno = failure;                                                                                       \
                return -1;                                                                                             \
            }                                                                                                          \
            length = length > 1 ? length / 2 : length;                                                                 \
        }                                                                                                              \
        if ((isWrite) && isOpenBelow(file))                                                                            \
            noteContent(file, 0);                                                                                      \
        return next arguments;                                                                                         \
    }

#define WRAP_FLUSH(name)                                                                                               \
    int name(int file)                                                                                                 \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        if (isOpenBelow(file) && fails(#name))                                                                         \
            return -1;                                                                                                 \
        const int result = next(file);                                                                                 \
        if (result == 0)                                                                                               \
            noteContent(file, 1);                                                                                      \
        return result;                                                                                                 \
    }

#define WRAP_READDIR(type, name)                                                                                       \
    struct type *name(DIR *folder)                                                                                     \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        if (isOpenBelow(dirfd(folder)) && fails(#name))                                                                \
            return NULL;                                                                                               \
        return next(folder);                                                                                           \
    }

WRAP_OPEN(open, (const char *path, int flags, ...), (path, flags, mode), isBelow(path))
WRAP_OPEN(open64, (const char *path, int flags, ...), (path, flags, mode), isBelow(path))
WRAP_OPEN(openat, (int folder, const char *path, int flags, ...), (folder, path, flags, mode), isAtBelow(folder, path))
WRAP_OPEN(openat64, (int folder, const char *path, int flags, ...), (folder, path, flags, mode),
          isAtBelow(folder, path))
WRAP_TRANSFER(read, (int file, void *buffer, size_t length), (file, buffer, length), 0)
WRAP_TRANSFER(write, (int file, const void *buffer, size_t length), (file, buffer, length), 1)
WRAP_TRANSFER(pread, (int file, void *buffer, size_t length, off_t offset), (file, buffer, length, offset), 0)
WRAP_TRANSFER(pread64, (int file, void *buffer, size_t length, off64_t offset), (file, buffer, length, offset), 0)
WRAP_TRANSFER(pwrite, (int file, const void *buffer, size_t length, off_t offset), (file, buffer, length, offset), 1)
WRAP_READDIR(dirent, readdir)
WRAP_READDIR(dirent64, readdir64)
WRAP(int, rename, (const char *from, const char *to), (from, to), isBelow(from) || isBelow(to))
WRAP(int, renameat, (int folder, const char *from, int toFolder, const char *to), (folder, from, toFolder, to),
     isAtBelow(folder, from) || isAtBelow(toFolder, to))
WRAP_UNKNOWN(int, renameat2, (int folder, const char *from, int toFolder, const char *to, unsigned flags),
             (folder, from, toFolder, to, flags), isAtBelow(folder, from) || isAtBelow(toFolder, to), plainness > 0,
             EINVAL)
WRAP(int, unlink, (const char *path), (path), isBelow(path))
WRAP(int, unlinkat, (int folder, const char *path, int flags), (folder, path, flags), isAtBelow(folder, path))
WRAP(int, remove, (const char *path), (path), isBelow(path))
WRAP(int, rmdir, (const char *path), (path), isBelow(path))
WRAP_UNKNOWN(int, linkat, (int folder, const char *from, int toFolder, const char *to, int flags),
             (folder, from, toFolder, to, flags), isAtBelow(toFolder, to), plainness > 1, EPERM)
WRAP(int, symlinkat, (const char *target, int folder, const char *path), (target, folder, path),
     isAtBelow(folder, path))
WRAP(int, mkdir, (const char *path, mode_t mode), (path, mode), isBelow(path))
WRAP(int, mkdirat, (int folder, const char *path, mode_t mode), (folder, path, mode), isAtBelow(folder, path))
WRAP_FLUSH(fsync)
WRAP_FLUSH(fdatasync)
WRAP(int, ftruncate, (int file, off_t length), (file, length), isOpenBelow(file))
WRAP(int, ftruncate64, (int file, off64_t length), (file, length), isOpenBelow(file))
WRAP(int, stat, (const char *path, struct stat *info), (path, info), isBelow(path))
WRAP(int, stat64, (const char *path, struct stat64 *info), (path, info), isBelow(path))
WRAP(int, lstat, (const char *path, struct stat *info), (path, info), isBelow(path))
WRAP(int, lstat64, (const char *path, struct stat64 *info), (path, info), isBelow(path))
WRAP(int, fstat, (int file, struct stat *info), (file, info), isOpenBelow(file))
WRAP(int, fstat64, (int file, struct stat64 *info), (file, info), isOpenBelow(file))
WRAP(int, fstatat, (int folder, const char *path, struct stat *info, int flags), (folder, path, info, flags),
     isAtBelow(folder, path))
WRAP(int, fstatat64, (int folder, const char *path, struct stat64 *info, int flags), (folder, path, info, flags),
     isAtBelow(folder, path))
WRAP(int, statx, (int folder, const char *path, int flags, unsigned mask, struct statx *info),
     (folder, path, flags, mask, info), isAtBelow(folder, path))
WRAP(int, futimens, (int file, const struct timespec times[2]), (file, times), isOpenBelow(file))
WRAP(int, utimensat, (int folder, const char *path, const struct timespec times[2], int flags),
     (folder, path, times, flags), isAtBelow(folder, path))
WRAP(int, fchmod, (int file, mode_t mode), (file, mode), isOpenBelow(file))

/* The third argument is a number or an address, or there is none. */
#define WRAP_CONTROL(name)                                                                                             \
    int name(int file, int command, ...)                                                                               \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        va_list rest;                                                                                                  \
        va_start(rest, command);                                                                                       \
        void *argument = va_arg(rest, void *);                                                                         \
        va_end(rest);                                                                                                  \
        if (hasNoLeases && command == F_SETLEASE) {                                                                    \
            errno = EINVAL;                                                                                            \
            return -1;                                                                                                 \
        }                                                                                                              \
        return next(file, command, argument);                                                                          \
    }

WRAP_CONTROL(fcntl)
WRAP_CONTROL(fcntl64)

DIR *fdopendir(int file)
{
    NEXT(fdopendir);
    return isOpenBelow(file) && fails("fdopendir") ? NULL : next(file);
}

int pthread_create(pthread_t *thread, const pthread_attr_t *attributes, void *(*start)(void *), void *argument)
{
    NEXT(pthread_create);
    return getenv("MIRRIX_FAULT_NO_THREADS") ? EAGAIN : next(thread, attributes, start, argument);
}

/* The file is closed all the same, as the system does it. */
int close(int file)
{
    NEXT(close);
    const int isFailing = isOpenBelow(file) && fails("close");
    const int result = next(file);
    if (!isFailing)
        return result;
    errno = failure;
    return -1;
}
