/* Preloaded into a program under test, makes one of its file-system calls fail: the MIRRIX_FAULT_AT-th call, counted
   from 1, that concerns something below one of the folders MIRRIX_FAULT_FOLDERS (with colons between them) fails with
   the error number MIRRIX_FAULT_ERRNO; error 0 stands for a read or write of half the length. With MIRRIX_FAULT_STICKY
   all later calls fail too, as on a drive that has gone. The name of the call is written to MIRRIX_FAULT_REPORT, which
   is not made when the program ended before. */

#include <dirent.h>
#include <dlfcn.h>
#include <errno.h>
#include <fcntl.h>
#include <limits.h>
#include <stdarg.h>
#include <stdatomic.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
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
static atomic_long calls;

__attribute__((constructor)) static void readPlan(void)
{
    const char *at = getenv("MIRRIX_FAULT_AT");
    const char *code = getenv("MIRRIX_FAULT_ERRNO");
    folders = getenv("MIRRIX_FAULT_FOLDERS");
    failAt = at ? atol(at) : 0;
    failure = code ? atoi(code) : EIO;
    isSticky = getenv("MIRRIX_FAULT_STICKY") != NULL;
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

/* Counts a call; whether it is the one to fail. */
static int isDue(const char *name)
{
    const long number = atomic_fetch_add(&calls, 1) + 1;
    if (number != failAt && !(isSticky && number > failAt))
        return 0;
    if (number == failAt)
        report(name);
    return 1;
}

static int fails(const char *name)
{
    if (!isDue(name) || failure == 0)
        return 0;
    errno = failure;
    return 1;
}

#define WRAP(result, name, parameters, arguments, isHit)                                                               \
    result name parameters                                                                                             \
    {                                                                                                                  \
        NEXT(name);                                                                                                    \
        if ((isHit) && fails(#name))                                                                                   \
            return -1;                                                                                                 \
        return next arguments;                                                                                         \
    }

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
#define WRAP_TRANSFER(name, parameters, arguments)                                                                     \
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
        return next arguments;                                                                                         \
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
WRAP_TRANSFER(read, (int file, void *buffer, size_t length), (file, buffer, length))
WRAP_TRANSFER(write, (int file, const void *buffer, size_t length), (file, buffer, length))
WRAP_TRANSFER(pread, (int file, void *buffer, size_t length, off_t offset), (file, buffer, length, offset))
WRAP_TRANSFER(pread64, (int file, void *buffer, size_t length, off64_t offset), (file, buffer, length, offset))
WRAP_TRANSFER(pwrite, (int file, const void *buffer, size_t length, off_t offset), (file, buffer, length, offset))
WRAP_READDIR(dirent, readdir)
WRAP_READDIR(dirent64, readdir64)
WRAP(int, rename, (const char *from, const char *to), (from, to), isBelow(from) || isBelow(to))
WRAP(int, renameat2, (int folder, const char *from, int toFolder, const char *to, unsigned flags),
     (folder, from, toFolder, to, flags), isAtBelow(folder, from) || isAtBelow(toFolder, to))
WRAP(int, unlink, (const char *path), (path), isBelow(path))
WRAP(int, unlinkat, (int folder, const char *path, int flags), (folder, path, flags), isAtBelow(folder, path))
WRAP(int, remove, (const char *path), (path), isBelow(path))
WRAP(int, rmdir, (const char *path), (path), isBelow(path))
WRAP(int, link, (const char *from, const char *to), (from, to), isBelow(to))
WRAP(int, linkat, (int folder, const char *from, int toFolder, const char *to, int flags),
     (folder, from, toFolder, to, flags), isAtBelow(toFolder, to))
WRAP(int, symlink, (const char *target, const char *path), (target, path), isBelow(path))
WRAP(int, mkdir, (const char *path, mode_t mode), (path, mode), isBelow(path))
WRAP(int, fsync, (int file), (file), isOpenBelow(file))
WRAP(int, fdatasync, (int file), (file), isOpenBelow(file))
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
