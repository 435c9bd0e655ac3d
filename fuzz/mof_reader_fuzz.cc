// Reads any bytes as MOF, adds what comes out to a repository and prints it; what was added and
// printed must read back.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>
#include <string_view>

#include "schema/repository.h"

namespace {

using cim::schema::Class;
using cim::schema::Document;
using cim::schema::FileContent;
using cim::schema::QualifierDeclaration;
using cim::schema::ReadOptions;
using cim::schema::Repository;

/// Every included file is the text itself, cut in half, so that includes are followed too.
ReadOptions options_for(std::string_view text) {
  ReadOptions options;
  options.read_file = [text](const std::string& path, std::size_t) -> FileContent {
    if (path.size() > 64) return {std::nullopt, "has a long name"};
    return {std::string(text.substr(text.size() / 2)), {}};
  };
  return options;
}

std::string printed(const Repository& repository) {
  std::string text;
  for (const QualifierDeclaration* declaration : repository.qualifier_declarations()) {
    text += to_mof(*declaration);
  }
  for (const Class* cls : repository.all())
    text += to_mof(*cls, repository);
  return text;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view text(reinterpret_cast<const char*>(data), size);
  Repository repository;
  if (!repository.add(read_mof_text(text, "fuzz.mof", options_for(text))).empty()) return 0;
  const std::string mof = printed(repository);
  for (const Class* cls : repository.all()) {
    to_mof(*cls, repository, cim::schema::Form::complete);
  }
  Repository again;
  if (!again.add(cim::schema::read_mof_text(mof)).empty() || printed(again) != mof) std::abort();
  return 0;
}
