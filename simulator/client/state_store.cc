#include "simulator/client/state_store.h"

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cinttypes>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "simulator/services/services.h"
#include "simulator/transport/recording.h"

namespace switch_sim {
namespace {

constexpr std::string_view kHeader = "journal of ";
constexpr std::string_view kReplaced = "replaced by ";
constexpr size_t kChecksumDigits = 16;

// FNV-1a: against torn writes and mistaken files, not against malice.
uint64_t checksum_of(std::string_view text) {
  uint64_t hash = 0xCBF29CE484222325U;
  for (const char character : text)
    hash = (hash ^ static_cast<uint8_t>(character)) * 0x100000001B3U;
  return hash;
}

std::string in_hex(uint64_t value) {
  char text[kChecksumDigits + 1];
  snprintf(text, sizeof text, "%016" PRIx64, value);
  return text;
}

std::string record(const std::string& content) {
  return in_hex(checksum_of(content)) + " " + content + "\n";
}

FabricError failure(const std::string& path) {
  return FabricError{path + ": " + strerror(errno)};
}

// What a line records; nothing for one that is damaged.
std::optional<std::string_view> content_of(std::string_view line) {
  if (line.size() <= kChecksumDigits || line[kChecksumDigits] != ' ') return std::nullopt;
  const std::string_view content = line.substr(kChecksumDigits + 1);
  if (line.substr(0, kChecksumDigits) != in_hex(checksum_of(content))) return std::nullopt;
  return content;
}

// A journal as it is read, line by line.
class JournalReader {
 public:
  JournalReader(std::string_view text, std::string path) : rest_(text), path_(std::move(path)) {}

  // The next whole line, without its end.
  std::optional<std::string_view> next() {
    const size_t end = rest_.find('\n');
    if (end == std::string_view::npos) return std::nullopt;
    const std::string_view line = rest_.substr(0, end);
    rest_.remove_prefix(end + 1);
    ++number_;
    return line;
  }

  FabricError error(const char* message) const {
    return FabricError{path_ + ":" + std::to_string(number_) + ": " + message};
  }

 private:
  std::string_view rest_;
  std::string path_;
  size_t number_ = 0;
};

// True when the last whole record says that the fabric file with this checksum has everything.
bool is_replaced_by(std::string_view text, uint64_t checksum) {
  JournalReader lines(text, "");
  std::optional<std::string_view> last;
  while (const auto line = lines.next()) {
    if (const auto content = content_of(*line)) last = content;
  }
  return last == std::string(kReplaced) + in_hex(checksum);
}

// Answers again what the record holds; false when it is no change that was answered.
bool repeat(std::string_view content, Fabric& fabric) {
  const auto read = read_recording(content);
  const auto* exchanges = std::get_if<std::vector<Exchange>>(&read);
  return exchanges != nullptr && exchanges->size() == 1 &&
         answer(exchanges->front().request, fabric, VirtualTime(0)).status == 0;
}

// The bytes of the journal that count. A damaged record with another change behind it is an error:
// only the last one can be that of a change that was not acknowledged.
std::variant<size_t, FabricError> repeat_all(JournalReader& lines, size_t header_size,
                                             Fabric& fabric) {
  size_t size = header_size, at = header_size;
  bool damaged = false;
  while (const auto line = lines.next()) {
    at += line->size() + 1;
    const auto content = content_of(*line);
    if (!content) {
      damaged = true;
      continue;
    }
    if (content->starts_with(kReplaced)) continue;  // it never came to that
    if (damaged) return lines.error("the line before is damaged");
    if (!repeat(*content, fabric)) return lines.error("the change cannot be repeated");
    size = at;
  }
  return size;
}

bool write_all(int file, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t count = write(file, bytes.data(), bytes.size());
    if (count < 0 && errno == EINTR) continue;
    if (count < 0) return false;
    bytes.remove_prefix(static_cast<size_t>(count));
  }
  return fdatasync(file) == 0;
}

// A new name of a file is durable once its folder is.
bool sync_folder_of(const std::string& path) {
  const size_t slash = path.rfind('/');
  const std::string folder = slash == std::string::npos ? "." : path.substr(0, slash + 1);
  const int descriptor = ::open(folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
  if (descriptor < 0) return false;
  const bool synced = fsync(descriptor) == 0;
  close(descriptor);
  return synced;
}

// Where the file really is: the journal stands beside that.
std::string resolved(const std::string& path) {
  char* real = realpath(path.c_str(), nullptr);
  std::string result = real != nullptr ? real : path;
  free(real);
  return result;
}

// Empty for what cannot be read.
std::string text_of(const std::string& path) {
  auto read = read_text_file(path);
  auto* text = std::get_if<std::string>(&read);
  return text != nullptr ? std::move(*text) : std::string();
}

bool has_checksum(const std::string& path, uint64_t checksum) {
  const auto read = read_text_file(path);
  const auto* text = std::get_if<std::string>(&read);
  return text != nullptr && checksum_of(*text) == checksum;
}

// While it lives, other processes wait before they read or replace the file. Locks nothing where
// there is no file or the file system knows no locks.
class FileLock {
 public:
  explicit FileLock(const std::string& path) {
    // A file that was replaced while we waited is another one by now.
    do {
      release();
      descriptor_ = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC);
    } while (descriptor_ >= 0 && is_locked() && !is_at(path));
  }
  ~FileLock() { release(); }
  FileLock(const FileLock&) = delete;
  FileLock& operator=(const FileLock&) = delete;

 private:
  bool is_locked() const {
    int result = 0;
    do {
      result = flock(descriptor_, LOCK_EX);
    } while (result != 0 && errno == EINTR);
    return result == 0;
  }
  bool is_at(const std::string& path) const {
    struct stat locked {};
    struct stat present {};
    return fstat(descriptor_, &locked) == 0 && stat(path.c_str(), &present) == 0 &&
           locked.st_dev == present.st_dev && locked.st_ino == present.st_ino;
  }
  void release() {
    if (descriptor_ >= 0) close(descriptor_);
    descriptor_ = -1;
  }

  int descriptor_ = -1;
};

}  // namespace

std::optional<StateStore::Identity> StateStore::identity_of(const std::string& path) {
  struct stat file {};
  if (stat(path.c_str(), &file) != 0 || !S_ISREG(file.st_mode)) return std::nullopt;
  return Identity{static_cast<int64_t>(file.st_ino), file.st_size, file.st_mtim.tv_sec,
                  file.st_mtim.tv_nsec};
}

std::string StateStore::journal_path() const {
  return resolved(path_) + ".journal";
}

std::variant<StateStore::Opened, FabricError> StateStore::open(const std::string& path) {
  Opened opened;
  StateStore& store = opened.store;
  store.path_ = path;
  if (path.empty()) return opened;
  if (access(path.c_str(), F_OK) != 0 && errno == ENOENT) {
    if (auto error = problem_of_new_file(path)) return std::move(*error);
    store.journal_file_ = identity_of(store.journal_path());  // left over from a removed file
    return opened;
  }
  const FileLock lock(path);  // the file and the journal of one moment
  auto text = read_text_file(path);
  if (auto* error = std::get_if<FabricError>(&text)) return std::move(*error);
  auto parsed = parse_fabric(std::get<std::string>(text), path);
  if (auto* error = std::get_if<FabricError>(&parsed)) return std::move(*error);
  store.checksum_ = checksum_of(std::get<std::string>(text));
  store.size_ = std::get<std::string>(text).size();
  opened.fabric = std::get<Fabric>(std::move(parsed));
  if (auto error = store.read_journal(*opened.fabric)) return std::move(*error);
  store.file_ = identity_of(path);
  store.journal_file_ = identity_of(store.journal_path());
  store.goes_on_ = true;
  return opened;
}

// A journal that ends before its first line does tells nothing, and neither does one whose changes
// the fabric file has.
std::optional<FabricError> StateStore::read_journal(Fabric& fabric) {
  const std::string path = journal_path();
  if (access(path.c_str(), F_OK) != 0 && errno == ENOENT) return std::nullopt;
  auto read = read_text_file(path);
  if (auto* error = std::get_if<FabricError>(&read)) return std::move(*error);
  const auto& text = std::get<std::string>(read);
  JournalReader lines(text, path);
  const auto header = lines.next();
  if (!header) return std::nullopt;
  if (*header != std::string(kHeader) + in_hex(checksum_)) {
    if (is_replaced_by(text, checksum_)) return std::nullopt;
    return lines.error(
        "the journal goes on from another state file; without it, its changes are lost");
  }
  auto repeated = repeat_all(lines, header->size() + 1, fabric);
  if (auto* error = std::get_if<FabricError>(&repeated)) return std::move(*error);
  journal_size_ = std::get<size_t>(repeated);
  return std::nullopt;
}

std::optional<FabricError> StateStore::save(const Request& request, const Fabric& changed) {
  if (path_.empty()) return std::nullopt;
  const FileLock lock(path_);
  if (auto problem = problem_with_others()) return problem;
  const bool appends = goes_on_ && size_ > kSmallFile && journal_size_ < size_ && is_undisturbed();
  auto error = appends ? append(request) : write_anew(changed);
  goes_on_ = !error;
  if (!error) differs_ = false;
  return error;
}

// A file that is gone, and one that was replaced by a copy of itself, hold no change that is not in
// the fabric of this process. Where there is a journal, the file alone does not tell that fabric.
std::optional<FabricError> StateStore::problem_with_others() const {
  if (path_.empty()) return std::nullopt;
  const auto file = identity_of(path_);
  const auto journal = identity_of(journal_path());
  const bool is_copy = file_ && journal_size_ == 0 && has_checksum(path_, checksum_);
  const bool same_file = !file || file == file_ || is_copy;
  const bool same_journal = !journal || journal == journal_file_;
  if (same_file && same_journal) return std::nullopt;
  return FabricError{path_ + ": another process has changed it meanwhile"};
}

// False when the files are no longer those that this process wrote or read last.
bool StateStore::is_undisturbed() const {
  if (!file_ || identity_of(path_) != file_) return false;
  if (journal_ == nullptr) {
    return journal_size_ == 0 || identity_of(journal_path()) == journal_file_;
  }
  struct stat journal {};
  return fstat(fileno(journal_.get()), &journal) == 0 && journal.st_nlink != 0 &&
         static_cast<size_t>(journal.st_size) == journal_size_;
}

std::optional<FabricError> StateStore::write_anew(const Fabric& changed) {
  const std::string text = write_fabric(changed);
  const std::string journal = journal_path();
  journal_.reset();
  const int file = ::open(journal.c_str(), O_WRONLY | O_APPEND | O_CLOEXEC);
  if (file < 0 && errno != ENOENT) return failure(journal);
  if (file >= 0) {
    // The line end in front closes one that was not written whole.
    const bool written =
        write_all(file, "\n" + record(std::string(kReplaced) + in_hex(checksum_of(text))));
    const int error = errno;
    close(file);
    journal_file_ = identity_of(journal);
    errno = error;
    if (!written) return failure(journal);
  }
  const auto before = identity_of(path_);
  auto error = save_text_file(text, path_);
  // After some errors the new file is in its place all the same, such as when the folder cannot be
  // made durable.
  const bool is_there = identity_of(path_) != before && has_checksum(path_, checksum_of(text));
  if (error && !is_there) return error;
  // Who has found the new file since may have changed it already, or begun a journal for it: then
  // they are not taken for this process's own.
  const FileLock lock(path_);
  checksum_ = checksum_of(text);
  size_ = text.size();
  journal_size_ = 0;
  if (has_checksum(path_, checksum_)) file_ = identity_of(path_);
  // One that stays is known by its last record.
  if (is_replaced_by(text_of(journal), checksum_) && unlink(journal.c_str()) == 0)
    journal_file_.reset();
  return error;
}

// Opens the journal, cut to what counts in it.
std::optional<FabricError> StateStore::start_journal() {
  const std::string path = journal_path();
  const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
  if (file < 0) return failure(path);
  journal_.reset(fdopen(file, "a"));
  if (journal_ == nullptr || ftruncate(file, static_cast<off_t>(journal_size_)) != 0) {
    return failure(path);
  }
  if (journal_size_ != 0) return std::nullopt;
  const std::string header = std::string(kHeader) + in_hex(checksum_) + "\n";
  if (!write_all(file, header) || !sync_folder_of(path)) return failure(path);
  journal_size_ = header.size();
  return std::nullopt;
}

std::optional<FabricError> StateStore::append(const Request& request) {
  auto error = append_to_journal(request);
  journal_file_ = identity_of(journal_path());
  return error;
}

std::optional<FabricError> StateStore::append_to_journal(const Request& request) {
  if (journal_ == nullptr) {
    if (auto error = start_journal()) {
      journal_.reset();
      return error;
    }
  }
  const std::string line = record(request_line(0, request));
  const int file = fileno(journal_.get());
  if (!write_all(file, line)) {
    auto error = failure(journal_path());
    // Where not even this can be done, the line end of the next write closes the line.
    if (ftruncate(file, static_cast<off_t>(journal_size_)) != 0) errno = 0;
    journal_.reset();
    return error;
  }
  journal_size_ += line.size();
  return std::nullopt;
}

}  // namespace switch_sim
