#include "dbc_NewFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "dbc_SystemCalls.h"
#include "nex_Exception.h"

namespace {

constexpr std::size_t blockSize = std::size_t{8} << 20;

dbc_SystemCalls& Calls() {
  static dbc_SystemCalls calls = {
      [](char const* path, int flags, mode_t mode) { return ::open(path, flags, mode); },
      ::write,
      ::fsync,
      ::close,
      [](char const* from, char const* to) { return ::rename(from, to); },
      ::unlink,
  };
  return calls;
}

/// Repeats a call that a signal interrupted.
template <class Call>
auto Retried(Call call) {
  auto result = call();
  while (result < 0 && errno == EINTR) {
    result = call();
  }
  return result;
}

/// The file that a path means: a symbolic link stays one.
std::string Followed(std::string const& path) {
  std::error_code error;
  if (!std::filesystem::is_symlink(path, error)) {
    return path;
  }
  std::filesystem::path const target = std::filesystem::weakly_canonical(path, error);
  return error ? path : target.string();
}

std::string FolderOf(std::string const& path) {
  std::string const folder = std::filesystem::path(path).parent_path().string();
  return folder.empty() ? "." : folder;
}

/// A file under a temporary name beside the one that it is to replace; gone again unless it took that one's place.
class NewFile {
 public:
  explicit NewFile(std::string target)
      : target_(std::move(target)), path_(target_ + ".new" + std::to_string(::getpid())) {
    struct stat old = {};
    bool const replaces = ::stat(target_.c_str(), &old) == 0;
    mode_t const mode = replaces ? old.st_mode & 0777u : 0666u;
    file_ = Open(mode);
    if (file_ < 0 && errno == EEXIST) {
      // Left by a process of the same number that died.
      Calls().unlink(path_.c_str());
      file_ = Open(mode);
    }
    if (file_ < 0) {
      dbc_RefuseSystem(target_, "cannot be saved, open failed");
    }
    if (replaces) {
      // The mask of the process does not hold for a file that is there; a system without permissions may refuse.
      static_cast<void>(::fchmod(file_, mode));
    }
  }
  ~NewFile() {
    if (file_ >= 0) {
      Calls().close(file_);
    }
    if (!inPlace_) {
      Calls().unlink(path_.c_str());
    }
  }
  NewFile(NewFile const&) = delete;
  NewFile& operator=(NewFile const&) = delete;

  void Write(std::span<std::uint8_t const> content) {
    while (!content.empty()) {
      std::size_t const count = std::min(content.size(), blockSize);
      ssize_t const written = Retried([&] { return Calls().write(file_, content.data(), count); });
      if (written <= 0) {
        Refuse("cannot be saved, write failed");
      }
      content = content.subspan(static_cast<std::size_t>(written));
    }
  }
  void Sync() {
    if (Retried([&] { return Calls().fsync(file_); }) != 0) {
      Refuse("cannot be saved, fsync failed");
    }
  }
  void Close() {
    int const file = file_;
    file_ = -1;  // Closed whatever the call says.
    if (Calls().close(file) != 0) {
      Refuse("cannot be saved, close failed");
    }
  }
  void TakePlace() {
    if (Calls().rename(path_.c_str(), target_.c_str()) != 0) {
      Refuse("cannot be saved, rename failed");
    }
    inPlace_ = true;
  }

 private:
  int Open(mode_t mode) {
    return Retried([&] { return Calls().open(path_.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode); });
  }
  [[noreturn]] void Refuse(char const* what) const { dbc_RefuseSystem(target_, what); }

  std::string target_;
  std::string path_;
  int file_ = -1;
  bool inPlace_ = false;
};

/// Makes the rename last. The file is whole under its name by now, whatever happens here.
void SyncFolder(std::string const& path) {
  std::string const folder = FolderOf(path);
  int const file = Retried([&] { return Calls().open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC, 0); });
  if (file < 0) {
    dbc_RefuseSystem(path, "was saved, but its directory cannot be opened to be synced");
  }
  // Some file systems cannot sync a directory and say so by EINVAL.
  bool const synced = Retried([&] { return Calls().fsync(file); }) == 0 || errno == EINVAL;
  int const reason = errno;
  Calls().close(file);
  if (!synced) {
    errno = reason;
    dbc_RefuseSystem(path, "was saved, but its directory cannot be synced");
  }
}

}  // namespace

dbc_SystemCalls dbc_SetSystemCalls(dbc_SystemCalls const& calls) { return std::exchange(Calls(), calls); }

void dbc_RefuseSystem(std::string const& path, char const* what) {
  std::string const text = path + ": " + what + ": " + std::generic_category().message(errno);
  nex_PrimException<cow_String, 2>(cow_String(text)).Throw(__FILE__, __LINE__);
}

void dbc_ReplaceFile(std::string const& path, std::span<std::uint8_t const> content) {
  std::string const target = Followed(path);
  {
    NewFile file(target);
    file.Write(content);
    file.Sync();
    file.Close();
    file.TakePlace();
  }
  SyncFolder(target);
}
