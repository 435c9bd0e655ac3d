// Reads MOF text: qualifier declarations, classes, instances and pragmas.
//
// Reading is purely about the text: what names mean (superclasses, qualifiers) is checked when a
// Document is added to a Repository. Any bytes may be read: they give a Document, errors, or both,
// in time proportional to their number.
#ifndef SCHEMA_MOF_READER_H_
#define SCHEMA_MOF_READER_H_

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "schema/class_model.h"

namespace cim::schema {

/// What a MOF text declares, in its order, the included files in the place of their pragma.
struct Document {
  std::vector<QualifierDeclaration> qualifiers;
  std::vector<Class> classes;
  std::vector<InstanceDeclaration> instances;
  std::vector<std::string> files;  ///< every file read, the first one first
  std::vector<Diagnostic> errors;  ///< in the order found

  bool ok() const { return errors.empty(); }
  /// All errors, one a line, each line ended; empty when there are none.
  std::string error_text() const;
};

/// The content of a file, or the reason why there is none.
struct FileContent {
  std::optional<std::string> text;
  std::string error;  ///< "cannot be opened: No such file or directory"
};

struct ReadOptions {
  std::size_t max_file_bytes = std::size_t{8} << 20;    ///< a larger file is refused
  std::size_t max_total_bytes = std::size_t{32} << 20;  ///< of a text and all it includes
  std::size_t max_include_depth = 16;
  std::size_t max_errors = 50;  ///< reading stops there
  /// Reads a file; empty: regular files of the file system.
  std::function<FileContent(const std::string& path, std::size_t max_bytes)> read_file;
};

/// Reads a file and what it includes. A file is read once, however often it is included; including
/// a file from within itself is an error. Included names are relative to the including file.
/// \param path  shown in positions as it is given here
Document read_mof_file(const std::string& path, const ReadOptions& options = {});

/// Reads a text as if it stood in a file of that name, which need not exist.
Document read_mof_text(std::string_view text, const std::string& file_name = "<text>",
                       const ReadOptions& options = {});

}  // namespace cim::schema

#endif  // SCHEMA_MOF_READER_H_
