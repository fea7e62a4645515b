// create_files SOURCE TARGET: makes every folder and file of SOURCE again below TARGET, which must not exist, with the
// same names and sizes and in the same order, and prints the seconds that the making took. It answers what a program
// that leaves SOURCE behind pays for its files alone.

#define _XOPEN_SOURCE 700

#include <fcntl.h>
#include <ftw.h>
#include <stdbool.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

typedef struct
{
    char *path; // below the root, with a leading slash
    size_t size;
    struct timespec modified;
    ino_t inode;
    bool isFolder;
} Entry;

static Entry *entries;
static size_t entryCount;
static size_t entryRoom;
static size_t rootLength;
static size_t largestSize = 1;

static void fail(const char *what)
{
    perror(what);
    exit(1);
}

static void *checked(void *memory)
{
    if (!memory)
        fail("memory");
    return memory;
}

static int remember(const char *path, const struct stat *info, int type, struct FTW *place)
{
    (void)place;
    if ((type != FTW_F && type != FTW_D) || !path[rootLength])
        return 0;
    if (entryCount == entryRoom) {
        entryRoom = entryRoom ? 2 * entryRoom : 4096;
        entries = checked(realloc(entries, entryRoom * sizeof *entries));
    }
    const size_t size = type == FTW_F ? (size_t)info->st_size : 0;
    if (size > largestSize)
        largestSize = size;
    entries[entryCount++] = (Entry){.path = checked(strdup(path + rootLength)),
                                    .size = size,
                                    .modified = info->st_mtim,
                                    .inode = info->st_ino,
                                    .isFolder = type == FTW_D};
    return 0;
}

// Folders first, parents before children; then files as they were written: the order decides how often a file system
// changes from one folder to the next.
static int compareEntries(const void *left, const void *right)
{
    const Entry *a = left;
    const Entry *b = right;
    if (a->isFolder != b->isFolder)
        return a->isFolder ? -1 : 1;
    if (a->isFolder)
        return strcmp(a->path, b->path);
    if (a->modified.tv_sec != b->modified.tv_sec)
        return a->modified.tv_sec < b->modified.tv_sec ? -1 : 1;
    if (a->modified.tv_nsec != b->modified.tv_nsec)
        return a->modified.tv_nsec < b->modified.tv_nsec ? -1 : 1;
    return (a->inode > b->inode) - (a->inode < b->inode);
}

static void createFile(const char *path, const char *bytes, size_t size)
{
    const int file = open(path, O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0644);
    if (file < 0)
        fail(path);
    while (size > 0) {
        const ssize_t written = write(file, bytes, size);
        if (written < 0)
            fail(path);
        size -= (size_t)written;
    }
    if (close(file) != 0)
        fail(path);
}

static double now(void)
{
    struct timespec time;
    clock_gettime(CLOCK_MONOTONIC, &time);
    return (double)time.tv_sec + 1e-9 * (double)time.tv_nsec;
}

int main(int count, char **arguments)
{
    if (count != 3) {
        fprintf(stderr, "usage: create_files SOURCE TARGET\n");
        return 2;
    }
    rootLength = strlen(arguments[1]);
    if (nftw(arguments[1], remember, 64, FTW_PHYS) != 0)
        fail(arguments[1]);
    qsort(entries, entryCount, sizeof *entries, compareEntries);
    char *bytes = checked(malloc(largestSize));
    memset(bytes, 'x', largestSize);

    const size_t targetLength = strlen(arguments[2]);
    for (size_t i = 0; i < entryCount; ++i) {
        char *path = checked(malloc(targetLength + strlen(entries[i].path) + 1));
        strcpy(path, arguments[2]);
        strcat(path, entries[i].path);
        free(entries[i].path);
        entries[i].path = path;
    }

    const double start = now();
    if (mkdir(arguments[2], 0755) != 0)
        fail(arguments[2]);
    for (size_t i = 0; i < entryCount; ++i) {
        if (!entries[i].isFolder)
            createFile(entries[i].path, bytes, entries[i].size);
        else if (mkdir(entries[i].path, 0755) != 0)
            fail(entries[i].path);
    }
    printf("%.6f\n", now() - start);
    return 0;
}
