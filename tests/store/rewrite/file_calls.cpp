#include "store/rewrite/file_calls.h"

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstdarg>
#include <cstdio>

namespace zelko::test {

namespace {

struct Fault {
  int fatal = 0, failing = 0, failure = 0, shortWrite = 0;
  bool stays = false;
} fault;
int calls = 0, readings = 0, failingRead = 0;

bool cannotRead() {
  if (++readings != failingRead) return false;
  errno = EIO;
  return true;
}

// True where the call has to fail.
bool stumbles(bool writes = false) {
  ++calls;
  if (calls == fault.fatal) _exit(kKilled);
  const bool isLater = fault.stays && writes && fault.failing > 0 && calls > fault.failing;
  if (calls != fault.failing && !isLater) return false;
  errno = fault.failure;
  return true;
}

// How much of a write reaches the file.
size_t reaching(size_t size) {
  if (fault.shortWrite == 0 || calls < fault.shortWrite || size < 2) return size;
  fault = {0, calls + 1, ENOSPC, 0, true};
  return size / 2;
}

template <class F>
F* real(const char* name) {
  return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

void begin(const Fault& next) {
  calls = readings = failingRead = 0;
  fault = next;
}

}  // namespace

void dieAtCall(int number) { begin({number, 0, 0, 0, false}); }
void failAtCall(int number, int error) { begin({0, number, error, 0, false}); }
void failFromCall(int number, int error) { begin({0, number, error, 0, true}); }
void fallShortAtCall(int number) { begin({0, 0, 0, number, false}); }

void failAtRead(int number) {
  begin({});
  failingRead = number;
}
int reads() { return readings; }

int stopCounting() {
  fault = {};
  failingRead = 0;
  return calls;
}

}  // namespace zelko::test

// The program's calls find these before those of the system.
extern "C" {

using zelko::test::cannotRead;
using zelko::test::reaching;
using zelko::test::real;
using zelko::test::stumbles;

int open(const char* name, int flags, ...) {
  mode_t mode = 0;
  if ((flags & O_CREAT) != 0) {
    va_list rest;
    va_start(rest, flags);
    mode = va_arg(rest, mode_t);
    va_end(rest);
  }
  return stumbles((flags & O_CREAT) != 0) ? -1 : real<int(const char*, int, ...)>("open")(name, flags, mode);
}

ssize_t read(int file, void* bytes, size_t size) {
  return cannotRead() ? -1 : real<ssize_t(int, void*, size_t)>("read")(file, bytes, size);
}

ssize_t pread(int file, void* bytes, size_t size, off_t place) {
  return cannotRead() ? -1 : real<ssize_t(int, void*, size_t, off_t)>("pread")(file, bytes, size, place);
}

ssize_t write(int file, const void* bytes, size_t size) {
  return stumbles(true) ? -1 : real<ssize_t(int, const void*, size_t)>("write")(file, bytes, reaching(size));
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t place) {
  return stumbles(true) ? -1
                        : real<ssize_t(int, const void*, size_t, off_t)>("pwrite")(file, bytes, reaching(size), place);
}

int ftruncate(int file, off_t length) noexcept {
  return stumbles() ? -1 : real<int(int, off_t)>("ftruncate")(file, length);
}

int truncate(const char* name, off_t length) noexcept {
  return stumbles() ? -1 : real<int(const char*, off_t)>("truncate")(name, length);
}

int fdatasync(int file) { return stumbles() ? -1 : real<int(int)>("fdatasync")(file); }

int fsync(int file) { return stumbles() ? -1 : real<int(int)>("fsync")(file); }

int unlink(const char* name) noexcept { return stumbles() ? -1 : real<int(const char*)>("unlink")(name); }

int rename(const char* from, const char* to) noexcept {
  return stumbles() ? -1 : real<int(const char*, const char*)>("rename")(from, to);
}

int renameat2(int oldFolder, const char* from, int newFolder, const char* to, unsigned flags) noexcept {
  return stumbles() ? -1
                    : real<int(int, const char*, int, const char*, unsigned)>("renameat2")(oldFolder, from, newFolder,
                                                                                           to, flags);
}

int mkdir(const char* name, mode_t mode) noexcept {
  return stumbles(true) ? -1 : real<int(const char*, mode_t)>("mkdir")(name, mode);
}

int fchmod(int file, mode_t mode) noexcept { return stumbles() ? -1 : real<int(int, mode_t)>("fchmod")(file, mode); }

int chmod(const char* name, mode_t mode) noexcept {
  return stumbles() ? -1 : real<int(const char*, mode_t)>("chmod")(name, mode);
}
}
