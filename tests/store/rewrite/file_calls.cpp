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

int calls = 0, fatal = 0, failing = 0, failure = 0;

// True where the call has to fail.
bool stumbles() {
  ++calls;
  if (calls == fatal) _exit(kKilled);
  if (calls != failing) return false;
  errno = failure;
  return true;
}

template <class F>
F* real(const char* name) {
  return reinterpret_cast<F*>(dlsym(RTLD_NEXT, name));
}

}  // namespace

void dieAtCall(int number) {
  calls = failing = 0;
  fatal = number;
}

void failAtCall(int number, int error) {
  calls = fatal = 0;
  failing = number;
  failure = error;
}

int stopCounting() {
  fatal = failing = 0;
  return calls;
}

}  // namespace zelko::test

// The program's calls find these before those of the system.
extern "C" {

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
  return stumbles() ? -1 : real<int(const char*, int, ...)>("open")(name, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t size) {
  return stumbles() ? -1 : real<ssize_t(int, const void*, size_t)>("write")(file, bytes, size);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t place) {
  return stumbles() ? -1 : real<ssize_t(int, const void*, size_t, off_t)>("pwrite")(file, bytes, size, place);
}

int ftruncate(int file, off_t length) noexcept {
  return stumbles() ? -1 : real<int(int, off_t)>("ftruncate")(file, length);
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

int fchmod(int file, mode_t mode) noexcept { return stumbles() ? -1 : real<int(int, mode_t)>("fchmod")(file, mode); }

int chmod(const char* name, mode_t mode) noexcept {
  return stumbles() ? -1 : real<int(const char*, mode_t)>("chmod")(name, mode);
}
}
