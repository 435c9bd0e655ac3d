#include "schema/mof_reader.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <set>
#include <system_error>
#include <utility>

#include "schema/mof_scanner.h"

namespace cim::schema {
namespace {

constexpr std::size_t kMaxFiles = 1000;
constexpr std::size_t kMaxListed = 256;  // qualifiers of one element, parameters of one method

constexpr std::array<std::string_view, 14> kDataTypes = {
    "boolean", "char16", "uint8",  "sint8",  "uint16", "sint16", "uint32",
    "sint32",  "uint64", "sint64", "real32", "real64", "string", "datetime"};
constexpr std::array<std::string_view, 4> kReservedNames = {"ref", "null", "true", "false"};
constexpr std::array<std::string_view, 4> kDeclarationWords = {"class", "instance", "qualifier",
                                                               "#pragma"};

struct ScopeName {
  std::string_view name;
  Scope scope;
};
constexpr std::array<ScopeName, 9> kScopes = {{{"class", Scope::class_},
                                               {"association", Scope::association},
                                               {"indication", Scope::indication},
                                               {"property", Scope::property},
                                               {"reference", Scope::reference},
                                               {"method", Scope::method},
                                               {"parameter", Scope::parameter},
                                               {"schema", Scope::schema},
                                               {"any", Scope::any}}};
constexpr std::array<std::string_view, 6> kFlavors = {
    "EnableOverride", "DisableOverride", "ToSubclass", "Restricted", "Translatable", "ToInstance"};

bool starts_declaration(const Token& token) {
  return token.kind == TokenKind::directive || token.is_word("class") ||
         token.is_word("instance") || token.is_word("qualifier");
}

/// The name of an included file as the including file means it.
std::string resolve(const std::string& included, const std::string& from) {
  const std::filesystem::path path(included);
  if (path.is_absolute()) return path.lexically_normal().string();
  return (std::filesystem::path(from).parent_path() / path).lexically_normal().string();
}

FileContent read_regular_file(const std::string& path, std::size_t max_bytes) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (error) return {std::nullopt, "cannot be opened: " + error.message()};
  if (!std::filesystem::is_regular_file(status)) return {std::nullopt, "is not a regular file"};
  std::ifstream in(path, std::ios::binary);
  if (!in) return {std::nullopt, std::string("cannot be opened: ") + std::strerror(errno)};
  // One byte more than allowed, so that the caller sees a file that is too large.
  std::string text(std::min<std::uintmax_t>(std::filesystem::file_size(path, error), max_bytes) + 1,
                   '\0');
  if (error) return {std::nullopt, "cannot be read: " + error.message()};
  in.read(text.data(), static_cast<std::streamsize>(text.size()));
  if (in.bad()) return {std::nullopt, "cannot be read"};
  text.resize(static_cast<std::size_t>(in.gcount()));
  return {std::move(text), {}};
}

/// What all files of one reading share.
class Reading {
 public:
  Reading(const ReadOptions& options, Document& document)
      : options_(options), document_(document) {}

  Document& document() { return document_; }
  bool stopped() const { return stopped_; }

  void error(Position position, std::string message) {
    if (stopped_) return;
    document_.errors.push_back({position, std::move(message)});
    if (document_.errors.size() < options_.max_errors) return;
    document_.errors.push_back({std::move(position), "too many errors: reading stopped here"});
    stopped_ = true;
  }

  void read_file(const std::string& path, const Position& included_at);
  void read_text(std::string_view text, const std::string& name);

 private:
  std::string identity(const std::string& path) const;
  void included_error(const std::string& path, const Position& included_at, std::string message);
  FileContent load(const std::string& path) const {
    return options_.read_file ? options_.read_file(path, options_.max_file_bytes)
                              : read_regular_file(path, options_.max_file_bytes);
  }

  const ReadOptions& options_;
  Document& document_;
  std::set<std::string, std::less<>> read_;  // identities of all files read or being read
  std::vector<std::string> open_;            // identities of the files being read
  std::size_t total_bytes_ = 0;
  bool stopped_ = false;
};

/// Reads the text of one file.
class FileReader {
 public:
  FileReader(Reading& reading, std::string_view text, std::string name)
      : reading_(reading),
        tokens_(text),
        file_(std::make_shared<const std::string>(std::move(name))) {}

  void read() {
    while (peek().kind != TokenKind::end && !reading_.stopped()) {
      const std::size_t before = taken_;
      if (!read_declaration()) skip_declaration(taken_ > before);
    }
  }

 private:
  const Token& peek() const { return tokens_.peek(); }
  Token take() {
    ++taken_;
    return tokens_.take();
  }
  Position at(const Token& token) const { return {file_, token.line, token.column}; }
  Position here() const { return at(peek()); }

  /// Reports what was expected where the next token stands. Always false.
  bool fail(const std::string& expected, const std::string& hint = {}) {
    const Token& token = peek();
    if (token.kind == TokenKind::bad) return fail_at(at(token), token.error);
    return fail_at(at(token), "expected " + expected + ", found " + token.described() + hint);
  }
  bool fail_at(Position position, std::string message) {
    reading_.error(std::move(position), std::move(message));
    return false;
  }

  bool expect(char mark, const std::string& where) {
    if (!peek().is(mark)) return fail(std::string("'") + mark + "' " + where);
    take();
    return true;
  }
  bool expect_name(const std::string& what, std::string& name, Position& position);
  bool accept(char mark) {
    if (!peek().is(mark)) return false;
    take();
    return true;
  }

  void skip_declaration(bool progressed);
  void skip_member();

  bool read_declaration();
  bool read_pragma();
  bool read_qualifier_declaration();
  bool read_scope(std::uint16_t& scope, const std::string& qualifier);
  bool read_declared_flavors(Flavors& flavors, const std::string& qualifier);
  bool read_flavor(WrittenFlavors& written);
  bool read_qualifiers(std::vector<Qualifier>& qualifiers);
  bool read_qualifier(Qualifier& qualifier);
  bool read_class(std::vector<Qualifier> qualifiers);
  bool read_class_head(Class& cls);
  bool skip_alias(std::string& alias);
  bool read_member(Class& cls);
  bool read_type(Type& type, std::string& reference_class, const std::string& what);
  bool read_array_mark(bool& is_array, std::optional<std::uint32_t>& size, const std::string& what);
  bool read_property_rest(Property& property);
  bool read_method_rest(Method& method);
  bool read_parameter(Parameter& parameter, const std::string& method);
  bool read_typed_value(const std::string& what, Type type, bool is_array, Value& value);
  bool read_value(const std::string& what, Value& value, Position& position);
  bool read_instance(std::vector<Qualifier> qualifiers);
  bool read_instance_property(InstanceDeclaration& instance);

  Reading& reading_;
  TokenStream tokens_;
  std::shared_ptr<const std::string> file_;
  std::size_t taken_ = 0;
};

bool FileReader::expect_name(const std::string& what, std::string& name, Position& position) {
  if (!peek().is_name()) return fail(what);
  for (std::string_view reserved : kReservedNames) {
    if (peek().is_word(reserved)) return fail(what, " (a reserved word)");
  }
  position = here();
  name = take().source;
  return true;
}

/// After an error: goes on behind the declaration, or at the next one.
void FileReader::skip_declaration(bool progressed) {
  std::size_t depth = 0;
  while (peek().kind != TokenKind::end) {
    if (progressed && starts_declaration(peek())) return;
    progressed = true;
    const Token token = take();
    if (token.is('{')) ++depth;
    if (token.is('}') && depth > 0) --depth;
    if (token.is(';') && depth == 0) return;
  }
}

/// After an error in braces: goes on behind the member, or at the brace that closes its owner.
void FileReader::skip_member() {
  std::size_t depth = 0;
  while (peek().kind != TokenKind::end && !starts_declaration(peek())) {
    if (peek().is('}') && depth == 0) return;
    const Token token = take();
    if (token.is('{')) ++depth;
    if (token.is('}')) --depth;
    if (token.is(';') && depth == 0) return;
  }
}

bool FileReader::read_declaration() {
  if (peek().kind == TokenKind::directive) return read_pragma();
  if (peek().is_word("qualifier")) return read_qualifier_declaration();
  std::vector<Qualifier> qualifiers;
  const bool qualified = peek().is('[');
  if (qualified && !read_qualifiers(qualifiers)) return false;
  if (peek().is_word("class")) return read_class(std::move(qualifiers));
  if (peek().is_word("instance")) return read_instance(std::move(qualifiers));
  if (qualified) return fail("'class' or 'instance' after the qualifiers");
  const std::string hint = peek().is_name() ? suggestion(peek().source, kDeclarationWords) : "";
  return fail("'class', 'instance', 'qualifier' or '#pragma'", hint);
}

bool FileReader::read_pragma() {
  take();
  std::string name;
  Position position;
  if (!expect_name("the name of the pragma", name, position)) return false;
  if (!expect('(', "after pragma " + name)) return false;
  if (peek().kind != TokenKind::string) return fail("a string for pragma " + name);
  const Position place = here();
  Value value;
  Position ignored;
  if (!read_value("pragma " + name, value, ignored)) return false;
  if (!expect(')', "at the end of pragma " + name)) return false;
  if (!equal_names(name, "include")) return true;
  if (value.text()->empty()) return fail_at(place, "pragma include names no file");
  reading_.read_file(resolve(*value.text(), *file_), place);
  return true;
}

bool FileReader::read_qualifier_declaration() {
  take();
  QualifierDeclaration declaration;
  if (!expect_name("the name of the qualifier", declaration.name, declaration.position)) {
    return false;
  }
  const std::string what = "qualifier " + declaration.name;
  if (!expect(':', "after " + what)) return false;
  std::string no_reference;
  if (!read_type(declaration.type, no_reference, "the type of " + what)) return false;
  if (declaration.type == Type::reference) {
    return fail_at(declaration.position, what + " cannot be a reference");
  }
  if (!read_array_mark(declaration.is_array, declaration.array_size, what)) return false;
  declaration.default_value = Value::null(declaration.type, declaration.is_array);
  if (accept('=') && !read_typed_value("the default of " + what, declaration.type,
                                       declaration.is_array, declaration.default_value)) {
    return false;
  }
  if (!expect(',', "and a scope after the type of " + what)) return false;
  if (!read_scope(declaration.scope, what)) return false;
  if (accept(',') && !read_declared_flavors(declaration.flavors, what)) return false;
  if (!expect(';', "after " + what)) return false;
  reading_.document().qualifiers.push_back(std::move(declaration));
  return true;
}

bool FileReader::read_scope(std::uint16_t& scope, const std::string& qualifier) {
  if (!peek().is_word("scope")) return fail("'Scope' of " + qualifier);
  take();
  if (!expect('(', "after 'Scope'")) return false;
  do {
    const auto found = std::find_if(kScopes.begin(), kScopes.end(), [&](const ScopeName& known) {
      return peek().is_word(known.name);
    });
    if (found == kScopes.end()) {
      std::array<std::string_view, kScopes.size()> names;
      std::transform(kScopes.begin(), kScopes.end(), names.begin(),
                     [](const ScopeName& known) { return known.name; });
      return fail("an element in the scope of " + qualifier,
                  peek().is_name() ? suggestion(peek().source, names) : "");
    }
    take();
    scope = static_cast<std::uint16_t>(scope | static_cast<std::uint16_t>(found->scope));
  } while (accept(','));
  return expect(')', "at the end of the scope of " + qualifier);
}

bool FileReader::read_declared_flavors(Flavors& flavors, const std::string& qualifier) {
  if (!peek().is_word("flavor")) return fail("'Flavor' of " + qualifier);
  take();
  if (!expect('(', "after 'Flavor'")) return false;
  WrittenFlavors written;
  do {
    if (!read_flavor(written)) return false;
  } while (accept(','));
  flavors.overridable = written.overridable.value_or(flavors.overridable);
  flavors.to_subclass = written.to_subclass.value_or(flavors.to_subclass);
  flavors.translatable = written.translatable.value_or(flavors.translatable);
  return expect(')', "at the end of the flavors of " + qualifier);
}

bool FileReader::read_flavor(WrittenFlavors& written) {
  const Token& token = peek();
  if (token.is_word("EnableOverride")) {
    written.overridable = true;
  } else if (token.is_word("DisableOverride")) {
    written.overridable = false;
  } else if (token.is_word("ToSubclass")) {
    written.to_subclass = true;
  } else if (token.is_word("Restricted")) {
    written.to_subclass = false;
  } else if (token.is_word("Translatable")) {
    written.translatable = true;
  } else if (!token.is_word("ToInstance")) {  // an obsolete flavor without a meaning
    return fail("a flavor", token.is_name() ? suggestion(token.source, kFlavors) : "");
  }
  take();
  return true;
}

bool FileReader::read_qualifiers(std::vector<Qualifier>& qualifiers) {
  take();
  do {
    Qualifier qualifier;
    if (!read_qualifier(qualifier)) return false;
    if (qualifiers.size() == kMaxListed) {
      return fail_at(qualifier.position, "more than 256 qualifiers in one list");
    }
    qualifiers.push_back(std::move(qualifier));
  } while (accept(','));
  return peek().is(']') ? accept(']')
                        : fail("',' or ']' after qualifier " + qualifiers.back().name);
}

bool FileReader::read_qualifier(Qualifier& qualifier) {
  if (!expect_name("the name of a qualifier", qualifier.name, qualifier.position)) return false;
  const std::string what = "qualifier " + qualifier.name;
  Position ignored;
  if (peek().is('{')) {
    if (!read_value(what, qualifier.value, ignored)) return false;
    qualifier.value_given = true;
  } else if (accept('(')) {
    if (!read_value(what, qualifier.value, ignored)) return false;
    if (!expect(')', "after the value of " + what)) return false;
    qualifier.value_given = true;
  }
  if (!accept(':')) return true;
  do {
    if (!read_flavor(qualifier.written)) return false;
  } while (peek().is_name());
  return true;
}

bool FileReader::skip_alias(std::string& alias) {
  if (!peek().is_word("as")) return true;
  take();
  if (peek().kind != TokenKind::alias) return fail("an alias such as '$Name' after 'as'");
  alias = take().source;
  return true;
}

bool FileReader::read_class_head(Class& cls) {
  take();
  if (!expect_name("the name of the class", cls.name, cls.position)) return false;
  std::string alias;  // classes have names of their own: nothing refers to them by alias
  if (!skip_alias(alias)) return false;
  if (accept(':') && !expect_name("the superclass of class " + cls.name, cls.superclass,
                                  cls.superclass_position)) {
    return false;
  }
  return expect('{', "after the head of class " + cls.name);
}

bool FileReader::read_class(std::vector<Qualifier> qualifiers) {
  Class cls;
  cls.qualifiers = std::move(qualifiers);
  if (!read_class_head(cls)) return false;
  while (!peek().is('}')) {
    if (reading_.stopped()) return true;
    if (peek().kind == TokenKind::end || starts_declaration(peek())) {
      return fail("'}' at the end of class " + cls.name);
    }
    if (!read_member(cls)) skip_member();
  }
  take();
  // What follows a missing ';' is most likely the next declaration: it is not skipped.
  expect(';', "after class " + cls.name);
  reading_.document().classes.push_back(std::move(cls));
  return true;
}

bool FileReader::read_member(Class& cls) {
  std::vector<Qualifier> qualifiers;
  if (peek().is('[') && !read_qualifiers(qualifiers)) return false;
  Property property;
  const Position type_position = here();
  if (!read_type(property.type, property.reference_class, "a property or method type")) {
    return false;
  }
  if (!expect_name("the name of a property or method", property.name, property.position)) {
    return false;
  }
  if (!peek().is('(')) {
    property.qualifiers = std::move(qualifiers);
    property.origin = property.declaring_class = cls.name;
    if (!read_property_rest(property)) return false;
    cls.properties.push_back(std::move(property));
    return true;
  }
  Method method;
  method.name = property.name;
  method.return_type = property.type;
  method.qualifiers = std::move(qualifiers);
  method.origin = method.declaring_class = cls.name;
  method.position = property.position;
  if (method.return_type == Type::reference) {
    return fail_at(type_position, "method " + method.name + " cannot return a reference");
  }
  if (!read_method_rest(method)) return false;
  cls.methods.push_back(std::move(method));
  return true;
}

bool FileReader::read_type(Type& type, std::string& reference_class, const std::string& what) {
  if (!peek().is_name()) return fail(what);
  const Token token = take();
  if (const std::optional<Type> known = type_of_name(token.source)) {
    type = *known;
    return true;
  }
  if (peek().is_word("ref")) {
    take();
    type = Type::reference;
    reference_class = token.source;
    return true;
  }
  std::string hint = suggestion(token.source, kDataTypes);
  if (hint.empty()) hint = " (a reference is written '" + std::string(token.source) + " REF')";
  return fail_at(at(token), "unknown type '" + std::string(token.source) + "'" + hint);
}

bool FileReader::read_array_mark(bool& is_array, std::optional<std::uint32_t>& size,
                                 const std::string& what) {
  if (!accept('[')) return true;
  is_array = true;
  if (peek().kind == TokenKind::number) {
    const ValueResult converted =
        convert(Value::of(Type::uint64, peek().content), Type::uint32, false);
    const auto* number =
        converted ? std::get_if<std::uint64_t>(&converted.value->scalar()) : nullptr;
    if (number == nullptr || *number == 0) {
      return fail("an array size from 1 to 4294967295 for " + what);
    }
    size = static_cast<std::uint32_t>(*number);
    take();
  }
  return expect(']', "after the array mark of " + what);
}

bool FileReader::read_property_rest(Property& property) {
  const std::string what = "property " + property.name;
  const Position mark = here();
  if (!read_array_mark(property.is_array, property.array_size, what)) return false;
  if (property.is_array && property.type == Type::reference) {
    return fail_at(mark, what + ": a reference cannot be an array");
  }
  property.default_value = Value::null(property.type, property.is_array);
  if (accept('=') && !read_typed_value("the default of " + what, property.type, property.is_array,
                                       property.default_value)) {
    return false;
  }
  return expect(';', "after " + what);
}

bool FileReader::read_method_rest(Method& method) {
  take();
  if (!peek().is(')')) {
    do {
      Parameter parameter;
      if (!read_parameter(parameter, method.name)) return false;
      if (method.parameters.size() == kMaxListed) {
        return fail_at(parameter.position, "more than 256 parameters of method " + method.name);
      }
      method.parameters.push_back(std::move(parameter));
    } while (accept(','));
  }
  if (!peek().is(')')) return fail("',' or ')' in the parameters of method " + method.name);
  take();
  return expect(';', "after method " + method.name);
}

bool FileReader::read_parameter(Parameter& parameter, const std::string& method) {
  if (peek().is('[') && !read_qualifiers(parameter.qualifiers)) return false;
  const std::string what = "a parameter of method " + method;
  if (!read_type(parameter.type, parameter.reference_class, "the type of " + what)) return false;
  if (!expect_name("the name of " + what, parameter.name, parameter.position)) return false;
  return read_array_mark(parameter.is_array, parameter.array_size, "parameter " + parameter.name);
}

bool FileReader::read_value(const std::string& what, Value& value, Position& position) {
  Literal literal = read_literal(tokens_, what);
  ++taken_;
  position = {file_, literal.line, literal.column};
  if (!literal.ok()) return fail_at(position, std::move(literal.error));
  value = std::move(literal.value);
  return true;
}

bool FileReader::read_typed_value(const std::string& what, Type type, bool is_array, Value& value) {
  Value literal;
  Position position;
  if (!read_value(what, literal, position)) return false;
  if (literal.type() == Type::reference) {
    return fail_at(std::move(position), what + ": an alias can stand only in an instance");
  }
  ValueResult converted = convert(literal, type, is_array);
  if (!converted) return fail_at(std::move(position), what + ": " + converted.error);
  value = std::move(*converted.value);
  return true;
}

bool FileReader::read_instance(std::vector<Qualifier> qualifiers) {
  take();
  InstanceDeclaration instance;
  instance.qualifiers = std::move(qualifiers);
  if (!peek().is_word("of")) return fail("'of' after 'instance'");
  take();
  if (!expect_name("the class of the instance", instance.class_name, instance.position)) {
    return false;
  }
  if (!skip_alias(instance.alias)) return false;
  const std::string what = "the instance of " + instance.class_name;
  if (!expect('{', "after the head of " + what)) return false;
  while (!peek().is('}')) {
    if (reading_.stopped()) return true;
    if (peek().kind == TokenKind::end || starts_declaration(peek())) {
      return fail("'}' at the end of " + what);
    }
    if (!read_instance_property(instance)) skip_member();
  }
  take();
  expect(';', "after " + what);
  reading_.document().instances.push_back(std::move(instance));
  return true;
}

bool FileReader::read_instance_property(InstanceDeclaration& instance) {
  std::vector<Qualifier> ignored;  // qualifiers on instance properties are obsolete
  if (peek().is('[') && !read_qualifiers(ignored)) return false;
  InstanceProperty property;
  if (!expect_name("the name of a property", property.name, property.position)) return false;
  const std::string what = "property " + property.name;
  if (!expect('=', "after " + what)) return false;
  if (!read_value(what, property.value, property.value_position)) return false;
  if (!expect(';', "after " + what)) return false;
  instance.properties.push_back(std::move(property));
  return true;
}

std::string Reading::identity(const std::string& path) const {
  const std::filesystem::path normal = std::filesystem::path(path).lexically_normal();
  if (options_.read_file) return normal.string();
  std::error_code error;
  const std::filesystem::path canonical = std::filesystem::weakly_canonical(normal, error);
  return error ? normal.string() : canonical.string();
}

void Reading::included_error(const std::string& path, const Position& included_at,
                             std::string message) {
  if (included_at.line > 0) {
    error(included_at, "included file '" + path + "' " + message);
  } else {
    error(included_at, std::move(message));
  }
}

void Reading::read_file(const std::string& path, const Position& included_at) {
  std::string id = identity(path);
  if (std::find(open_.begin(), open_.end(), id) != open_.end()) {
    return included_error(path, included_at, "includes itself");
  }
  if (read_.contains(id)) return;
  if (open_.size() >= options_.max_include_depth) {
    return included_error(path, included_at,
                          "is nested too deeply: at most " +
                              std::to_string(options_.max_include_depth) +
                              " files may include each other");
  }
  if (read_.size() >= kMaxFiles) return included_error(path, included_at, "is one too many");
  FileContent content = load(path);
  if (!content.text) return included_error(path, included_at, std::move(content.error));
  if (content.text->size() > options_.max_file_bytes) {
    return included_error(path, included_at,
                          "is larger than " + std::to_string(options_.max_file_bytes) + " bytes");
  }
  if (content.text->size() > options_.max_total_bytes - total_bytes_) {
    return included_error(path, included_at,
                          "makes all files together larger than " +
                              std::to_string(options_.max_total_bytes) + " bytes");
  }
  total_bytes_ += content.text->size();
  read_.insert(id);
  open_.push_back(std::move(id));
  document_.files.push_back(path);
  FileReader(*this, *content.text, path).read();
  open_.pop_back();
}

void Reading::read_text(std::string_view text, const std::string& name) {
  if (text.size() > options_.max_file_bytes) {
    const Position whole{std::make_shared<const std::string>(name), 0, 0};
    return error(whole, "is larger than " + std::to_string(options_.max_file_bytes) + " bytes");
  }
  total_bytes_ = std::min(text.size(), options_.max_total_bytes);
  read_.insert(identity(name));
  open_.push_back(identity(name));
  document_.files.push_back(name);
  FileReader(*this, text, name).read();
}

}  // namespace

std::string Document::error_text() const {
  std::string text;
  for (const Diagnostic& error : errors)
    text += error.text() + "\n";
  return text;
}

Document read_mof_file(const std::string& path, const ReadOptions& options) {
  Document document;
  const Position whole{std::make_shared<const std::string>(path), 0, 0};
  Reading(options, document).read_file(path, whole);
  return document;
}

Document read_mof_text(std::string_view text, const std::string& file_name,
                       const ReadOptions& options) {
  Document document;
  Reading(options, document).read_text(text, file_name);
  return document;
}

}  // namespace cim::schema
