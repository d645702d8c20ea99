#include "FaultyVfs.h"

#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sqlite3.h>
#include <unistd.h>

namespace ormiva::testing {

namespace {

struct State {
    int first = 0;
    DiskTrouble trouble = DiskTrouble::Broken;
    bool lasting = false;
    int failures = 0;
    std::vector<std::string> calls;
};
State state;
sqlite3_vfs* disk = nullptr; // the real one

/// Counts a call; gives true when it must fail.
bool fails(const char* call) {
    state.calls.emplace_back(call);
    const int number = static_cast<int>(state.calls.size());
    if (state.first == 0 || (state.lasting ? number < state.first : number != state.first))
        return false;
    if (state.trouble == DiskTrouble::Killed)
        ::raise(SIGKILL);
    ++state.failures;
    return true;
}

/// An open file: ours in front, the real one behind it in the same memory.
struct File {
    sqlite3_file base;
};
sqlite3_file* real(sqlite3_file* file) {
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<File*>(file) + 1);
}

int broken(int code) {
    return state.trouble == DiskTrouble::Full || state.trouble == DiskTrouble::ShortWrite ? SQLITE_FULL
                                                                                          : code;
}

int closeFile(sqlite3_file* file) {
    return real(file)->pMethods->xClose(real(file));
}
int readFile(sqlite3_file* file, void* bytes, int size, sqlite3_int64 at) {
    return fails("xRead") ? SQLITE_IOERR_READ : real(file)->pMethods->xRead(real(file), bytes, size, at);
}
int writeFile(sqlite3_file* file, const void* bytes, int size, sqlite3_int64 at) {
    if (!fails("xWrite"))
        return real(file)->pMethods->xWrite(real(file), bytes, size, at);
    if (state.trouble == DiskTrouble::ShortWrite)
        real(file)->pMethods->xWrite(real(file), bytes, size / 2, at);
    return broken(SQLITE_IOERR_WRITE);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    return fails("xTruncate") ? SQLITE_IOERR_TRUNCATE : real(file)->pMethods->xTruncate(real(file), size);
}
int syncFile(sqlite3_file* file, int flags) {
    return fails("xSync") ? broken(SQLITE_IOERR_FSYNC) : real(file)->pMethods->xSync(real(file), flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return fails("xFileSize") ? SQLITE_IOERR_FSTAT : real(file)->pMethods->xFileSize(real(file), size);
}
int lockFile(sqlite3_file* file, int lock) {
    if (!fails("xLock"))
        return real(file)->pMethods->xLock(real(file), lock);
    return state.trouble == DiskTrouble::Locked ? SQLITE_BUSY : SQLITE_IOERR_LOCK;
}
int unlockFile(sqlite3_file* file, int lock) {
    return real(file)->pMethods->xUnlock(real(file), lock);
}
int checkReservedLock(sqlite3_file* file, int* result) {
    return real(file)->pMethods->xCheckReservedLock(real(file), result);
}
int fileControl(sqlite3_file* file, int operation, void* argument) {
    return real(file)->pMethods->xFileControl(real(file), operation, argument);
}
int sectorSize(sqlite3_file* file) {
    return real(file)->pMethods->xSectorSize(real(file));
}
int deviceCharacteristics(sqlite3_file* file) {
    return real(file)->pMethods->xDeviceCharacteristics(real(file));
}

/// Version 1: without shared memory and memory maps, so that every access is a call that is seen here.
const sqlite3_io_methods methods = {1,
                                    closeFile,
                                    readFile,
                                    writeFile,
                                    truncateFile,
                                    syncFile,
                                    fileSize,
                                    lockFile,
                                    unlockFile,
                                    checkReservedLock,
                                    fileControl,
                                    sectorSize,
                                    deviceCharacteristics,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr,
                                    nullptr};

int openFile(sqlite3_vfs*, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    file->pMethods = nullptr;
    if (fails("xOpen"))
        return SQLITE_CANTOPEN;
    const int result = disk->xOpen(disk, name, real(file), flags, outFlags);
    if (real(file)->pMethods)
        file->pMethods = &methods;
    return result;
}
int deleteFile(sqlite3_vfs*, const char* name, int syncFolder) {
    return fails("xDelete") ? SQLITE_IOERR_DELETE : disk->xDelete(disk, name, syncFolder);
}
int accessFile(sqlite3_vfs*, const char* name, int flags, int* result) {
    return fails("xAccess") ? SQLITE_IOERR_ACCESS : disk->xAccess(disk, name, flags, result);
}

sqlite3_vfs& faulty() {
    static sqlite3_vfs vfs = [] {
        sqlite3_vfs made = *disk;
        made.pNext = nullptr;
        made.zName = "faulty";
        made.szOsFile = static_cast<int>(sizeof(File)) + disk->szOsFile;
        made.xOpen = openFile;
        made.xDelete = deleteFile;
        made.xAccess = accessFile;
        return made;
    }();
    return vfs;
}

} // namespace

FaultyVfs::FaultyVfs(int first, DiskTrouble trouble, bool lasting) {
    state = State{.first = first, .trouble = trouble, .lasting = lasting, .failures = 0, .calls = {}};
    disk = sqlite3_vfs_find("unix");
    if (!disk || sqlite3_vfs_register(&faulty(), 1) != SQLITE_OK)
        std::abort();
}

FaultyVfs::~FaultyVfs() {
    recover();
    sqlite3_vfs_register(disk, 1); // Files that are still open go on through the registered one.
}

const std::vector<std::string>& FaultyVfs::calls() const {
    return state.calls;
}

bool FaultyVfs::hasFailed() const {
    return state.failures > 0;
}

void FaultyVfs::recover() {
    state.first = 0;
}

} // namespace ormiva::testing
