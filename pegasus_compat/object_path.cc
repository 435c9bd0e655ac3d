#include <Pegasus/Common/CIMObjectPath.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <system_error>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {
namespace {

bool isDigit(Uint16 c) {
  return c >= '0' && c <= '9';
}

bool isHexDigit(Uint16 c) {
  return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

bool isHostCharacter(Uint16 c) {
  return isDigit(c) || (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '-' || c == '.' ||
         c == '_';
}

template <class Test>
Uint32 skip(const String& text, Uint32 i, Test test) {
  while (i < text.size() && test(text.getChar16Data()[i]))
    ++i;
  return i;
}

// A host name, an IPv4 address or an IPv6 address in brackets; then a port or nothing. Empty: the
// host is not known.
bool legalHost(const String& host) {
  if (host.size() == 0) return true;
  const Char16* text = host.getChar16Data();
  Uint32 end = 0;
  if (text[0] == '[') {
    end = skip(host, 1, [](Uint16 c) { return isHexDigit(c) || c == ':' || c == '.' || c == '%'; });
    if (end == 1 || text[end] != ']') return false;
    ++end;
  } else {
    end = skip(host, 0, isHostCharacter);
    if (end == 0) return false;
  }
  if (end == host.size()) return true;
  if (text[end] != ':') return false;
  const Uint32 portEnd = skip(host, end + 1, isDigit);
  return portEnd == host.size() && portEnd > end + 1;
}

struct Number {
  enum class Kind { natural, negative, real } kind;
  uint64_t natural = 0;
  int64_t negative = 0;
  double real = 0;

  bool operator==(const Number& x) const = default;
};

Number realNumber(double value) {
  return {Number::Kind::real, 0, 0, value};
}

std::optional<Number> integer(const std::string& digits, int base, bool minus) {
  uint64_t magnitude = 0;
  const char* last = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), last, magnitude, base);
  if (read.ec != std::errc() || read.ptr != last) return std::nullopt;
  if (!minus || magnitude == 0) return Number{Number::Kind::natural, magnitude};
  if (magnitude > uint64_t{1} << 63) return std::nullopt;
  return Number{Number::Kind::negative, 0, static_cast<int64_t>(0 - magnitude)};
}

// A number as MOF writes it: decimal, 0x hexadecimal, 0 octal, binary with a final b, or real.
std::optional<Number> parseNumber(const String& text) {
  std::string rest;
  for (Uint32 i = 0; i < text.size(); ++i) {
    const Uint16 c = text.getChar16Data()[i];
    const bool expected = isHexDigit(c) || c == 'x' || c == 'X' || c == '+' || c == '-' || c == '.';
    if (!expected) return std::nullopt;
    rest += static_cast<char>(c);
  }
  const bool minus = !rest.empty() && rest[0] == '-';
  if (minus || (!rest.empty() && rest[0] == '+')) rest.erase(0, 1);
  if (rest.empty() || !(isDigit(static_cast<Uint16>(rest[0])) || rest[0] == '.'))
    return std::nullopt;
  if (rest.size() > 2 && rest[0] == '0' && (rest[1] == 'x' || rest[1] == 'X')) {
    return integer(rest.substr(2), 16, minus);
  }
  if (rest.find_first_not_of("01") == rest.size() - 1 &&
      (rest.back() == 'b' || rest.back() == 'B')) {
    return integer(rest.substr(0, rest.size() - 1), 2, minus);
  }
  if (rest.find_first_not_of("0123456789") == std::string::npos) {
    return integer(rest, rest.size() > 1 && rest[0] == '0' ? 8 : 10, minus);
  }
  if (rest.find_first_not_of("0123456789.eE+-") != std::string::npos) return std::nullopt;
  double value = 0;
  const char* last = rest.data() + rest.size();
  const auto read = std::from_chars(rest.data(), last, value);
  if (read.ec != std::errc() || read.ptr != last) return std::nullopt;
  return realNumber(minus ? -value : value);
}

void sortByName(Array<CIMKeyBinding>& bindings) {
  const auto before = [](const CIMKeyBinding& x, const CIMKeyBinding& y) {
    return String::compareNoCase(x.getName().getString(), y.getName().getString()) < 0;
  };
  const CIMKeyBinding* first = bindings.getData();
  if (std::is_sorted(first, first + bindings.size(), before)) return;  // keep the shared elements
  CIMKeyBinding* items = &bindings[0];
  std::stable_sort(items, items + bindings.size(), before);
}

bool samePath(const CIMObjectPathRep& x, const CIMObjectPathRep& y) {
  const Array<CIMKeyBinding>& mine = x.keyBindings;
  const Array<CIMKeyBinding>& other = y.keyBindings;
  const bool same = String::equalNoCase(x.host, y.host) && x.nameSpace.equal(y.nameSpace) &&
                    x.className.equal(y.className) && mine.size() == other.size();
  for (Uint32 i = 0; same && i < mine.size(); ++i) {
    if (mine[i] != other[i]) return false;
  }
  return same;
}

// Reads the text of a path. Every function answers whether it could, and advances behind what it
// read.
class Parser {
 public:
  Parser(const String& text, CIMObjectPathRep& result) : _text(text), _result(result) {}

  bool parse() { return host() && nameSpace() && className() && keyBindings(); }

 private:
  Uint16 at(Uint32 i) const { return _text.getChar16Data()[i]; }  // 0 at the end
  bool done() const { return _next == _text.size(); }

  bool take(Uint16 c) {
    if (done() || at(_next) != c) return false;
    ++_next;
    return true;
  }

  String upTo(Uint32 end) {
    String part = _text.subString(_next, end - _next);
    _next = end;
    return part;
  }

  bool host() {
    if (at(0) != '/' || at(1) != '/') return true;
    _next = 2;
    const Uint32 slash = _text.find(_next, '/');
    if (slash == PEG_NOT_FOUND || slash == _next) return false;
    _result.host = upTo(slash);
    return legalHost(_result.host) && take('/');
  }

  bool nameSpace() {
    const Uint32 colon =
        skip(_text, _next, [](Uint16 c) { return c != ':' && c != '.' && c != '"' && c != '='; });
    if (colon == _text.size() || at(colon) != ':') return _result.host.size() == 0;
    const String name = upTo(colon);
    if (name.size() != 0) {
      if (!CIMNamespaceName::legal(name)) return false;
      _result.nameSpace = name;
    } else if (_result.host.size() == 0) {
      return false;
    }
    return take(':');
  }

  bool className() {
    const String name = upTo(skip(_text, _next, [](Uint16 c) { return c != '.' && c != '='; }));
    if (!CIMName::legal(name)) return false;
    _result.className = name;
    return true;
  }

  bool keyBindings() {
    if (done()) return true;
    if (take('=')) return take('@') && done();  // the only instance of a class without keys
    if (!take('.')) return false;
    do {
      if (!keyBinding()) return false;
    } while (take(','));
    sortByName(_result.keyBindings);
    return done();
  }

  bool keyBinding() {
    const String name = upTo(skip(_text, _next, [](Uint16 c) { return c != '=' && c != ','; }));
    if (!CIMName::legal(name) || !take('=')) return false;
    return take('"') ? quotedValue(name) : bareValue(name);
  }

  bool quotedValue(const CIMName& name) {
    String value;
    while (!take('"')) {
      if (take('\\') && at(_next) != '"' && at(_next) != '\\') return false;
      if (done()) return false;
      value.append(Char16(at(_next)));
      ++_next;
    }
    // Nothing tells a reference from a text but what it says.
    CIMObjectPathRep reference;
    const bool isReference = Parser(value, reference).parse() && reference.keyBindings.size() != 0;
    add(name, value, isReference ? CIMKeyBinding::REFERENCE : CIMKeyBinding::STRING);
    return true;
  }

  bool bareValue(const CIMName& name) {
    const String value = upTo(skip(_text, _next, [](Uint16 c) { return c != ','; }));
    static const String kTrue("TRUE");
    static const String kFalse("FALSE");
    if (String::equalNoCase(value, kTrue) || String::equalNoCase(value, kFalse)) {
      add(name, value, CIMKeyBinding::BOOLEAN);
      return true;
    }
    if (!parseNumber(value)) return false;
    add(name, value, CIMKeyBinding::NUMERIC);
    return true;
  }

  void add(const CIMName& name, const String& value, CIMKeyBinding::Type type) {
    _result.keyBindings.append(CIMKeyBinding(name, value, type));
  }

  const String& _text;
  CIMObjectPathRep& _result;
  Uint32 _next = 0;
};

// Whether two key texts of a type mean the same.
bool sameValue(CIMKeyBinding::Type type, const String& x, const String& y) {
  switch (type) {
    case CIMKeyBinding::BOOLEAN:
      return String::equalNoCase(x, y);
    case CIMKeyBinding::NUMERIC: {
      const auto number = parseNumber(x);
      const auto other = parseNumber(y);
      return number && other ? *number == *other : String::equal(x, y);
    }
    case CIMKeyBinding::REFERENCE: {
      CIMObjectPathRep path;
      CIMObjectPathRep other;
      const bool readable = Parser(x, path).parse();
      if (!readable || !Parser(y, other).parse()) return String::equal(x, y);
      return samePath(path, other);
    }
    case CIMKeyBinding::STRING:
      break;
  }
  return String::equal(x, y);
}

CIMKeyBinding::Type keyType(const CIMValue& value) {
  if (value.isArray()) throw TypeMismatchException();
  switch (value.getType()) {
    case CIMTYPE_BOOLEAN:
      return CIMKeyBinding::BOOLEAN;
    case CIMTYPE_CHAR16:
    case CIMTYPE_STRING:
    case CIMTYPE_DATETIME:
      return CIMKeyBinding::STRING;
    case CIMTYPE_REFERENCE:
      return CIMKeyBinding::REFERENCE;
    case CIMTYPE_OBJECT:
    case CIMTYPE_INSTANCE:
      throw TypeMismatchException();
    default:
      return CIMKeyBinding::NUMERIC;
  }
}

const CIMObjectPathRep& emptyPath() {
  static const CIMObjectPathRep empty;
  return empty;
}

const CIMObjectPathRep& pathOf(const CIMObjectPath& path) {
  const CIMObjectPathRep* rep = RepAccess::get(path);
  return rep == nullptr ? emptyPath() : *rep;
}

const String& checkedHost(const String& host) {
  if (!legalHost(host)) throw MalformedObjectNameException(host);
  return host;
}

// Continues a hash with a text, its length included, without regard to case if so told.
Uint32 hashed(Uint32 hash, const String& text, bool fold) {
  const Char16* data = text.getChar16Data();
  for (Uint32 i = 0; i < text.size(); ++i) {
    const Uint16 c = data[i];
    const bool capital = fold && c >= 'A' && c <= 'Z';
    hash = (hash ^ (capital ? c + 32U : c)) * 16777619U;
  }
  return (hash ^ text.size()) * 16777619U;
}

}  // namespace

String quoted(const String& text) {
  String result;
  result.reserveCapacity(text.size() + 2);
  result.append(Char16('"'));
  const Char16* data = text.getChar16Data();
  for (Uint32 i = 0; i < text.size(); ++i) {
    const Uint16 c = data[i];
    if (c == '"' || c == '\\') result.append(Char16('\\'));
    result.append(data[i]);
  }
  result.append(Char16('"'));
  return result;
}

CIMKeyBinding::CIMKeyBinding() : _type(BOOLEAN) {}
CIMKeyBinding::CIMKeyBinding(const CIMName& name, const String& value, Type type)
    : _name(name), _value(value), _type(type) {}
CIMKeyBinding::CIMKeyBinding(const CIMName& name, const CIMValue& value)
    : _name(name), _value(value.toString()), _type(keyType(value)) {}

const CIMName& CIMKeyBinding::getName() const {
  return _name;
}
void CIMKeyBinding::setName(const CIMName& name) {
  _name = name;
}
const String& CIMKeyBinding::getValue() const {
  return _value;
}
void CIMKeyBinding::setValue(const String& value) {
  _value = value;
}
CIMKeyBinding::Type CIMKeyBinding::getType() const {
  return _type;
}
void CIMKeyBinding::setType(Type type) {
  _type = type;
}

// NOLINTNEXTLINE(performance-unnecessary-value-param): the interface has it so
Boolean CIMKeyBinding::equal(CIMValue value) {
  const bool embedded = value.getType() == CIMTYPE_OBJECT || value.getType() == CIMTYPE_INSTANCE;
  if (value.isArray() || value.isNull() || embedded || keyType(value) != _type) return false;
  return sameValue(_type, _value, value.toString());
}

Boolean operator==(const CIMKeyBinding& x, const CIMKeyBinding& y) {
  return x.getName().equal(y.getName()) && x.getType() == y.getType() &&
         sameValue(x.getType(), x.getValue(), y.getValue());
}

Boolean operator!=(const CIMKeyBinding& x, const CIMKeyBinding& y) {
  return !(x == y);
}

CIMObjectPath::CIMObjectPath() = default;
CIMObjectPath::CIMObjectPath(const String& objectName) {
  set(objectName);
}
CIMObjectPath::CIMObjectPath(const String& host, const CIMNamespaceName& nameSpace,
                             const CIMName& className, const Array<CIMKeyBinding>& keyBindings) {
  set(host, nameSpace, className, keyBindings);
}

CIMObjectPath& CIMObjectPath::operator=(const String& objectName) {
  set(objectName);
  return *this;
}

// The path's own representation, copied first if others share it.
CIMObjectPathRep& CIMObjectPath::changeable() {
  if (_rep == nullptr || _rep->shared()) {
    *this = CIMObjectPath(new CIMObjectPathRep(pathOf(*this)));
  }
  return *_rep;
}

void CIMObjectPath::clear() {
  *this = CIMObjectPath();
}

void CIMObjectPath::set(const String& host, const CIMNamespaceName& nameSpace,
                        const CIMName& className, const Array<CIMKeyBinding>& keyBindings) {
  checkedHost(host);
  CIMObjectPath fresh(new CIMObjectPathRep);
  CIMObjectPathRep& rep = *fresh._rep;
  rep.host = host;
  rep.nameSpace = nameSpace;
  rep.className = className;
  rep.keyBindings = keyBindings;
  sortByName(rep.keyBindings);
  *this = fresh;
}

void CIMObjectPath::set(const String& objectName) {
  CIMObjectPathRep parsed;
  if (!Parser(objectName, parsed).parse()) throw MalformedObjectNameException(objectName);
  set(parsed.host, parsed.nameSpace, parsed.className, parsed.keyBindings);
}

const String& CIMObjectPath::getHost() const {
  return pathOf(*this).host;
}
void CIMObjectPath::setHost(const String& host) {
  changeable().host = checkedHost(host);
}
const CIMNamespaceName& CIMObjectPath::getNameSpace() const {
  return pathOf(*this).nameSpace;
}

void CIMObjectPath::setNameSpace(const CIMNamespaceName& nameSpace) {
  changeable().nameSpace = nameSpace;
}

const CIMName& CIMObjectPath::getClassName() const {
  return pathOf(*this).className;
}
void CIMObjectPath::setClassName(const CIMName& className) {
  changeable().className = className;
}

const Array<CIMKeyBinding>& CIMObjectPath::getKeyBindings() const {
  return pathOf(*this).keyBindings;
}

void CIMObjectPath::setKeyBindings(const Array<CIMKeyBinding>& keyBindings) {
  CIMObjectPathRep& rep = changeable();
  rep.keyBindings = keyBindings;
  sortByName(rep.keyBindings);
}

String CIMObjectPath::toString() const {
  const CIMObjectPathRep& path = pathOf(*this);
  String text;
  if (path.host.size() != 0) text = String("//") + path.host + String("/");
  if (path.host.size() != 0 || !path.nameSpace.isNull()) {
    text.append(path.nameSpace.getString()).append(Char16(':'));
  }
  text.append(path.className.getString());
  Uint16 separator = '.';
  const Array<CIMKeyBinding>& bindings = path.keyBindings;
  for (Uint32 i = 0; i < bindings.size(); ++i) {
    text.append(Char16(separator)).append(bindings[i].getName().getString()).append(Char16('='));
    const auto type = bindings[i].getType();
    const bool isText = type == CIMKeyBinding::STRING || type == CIMKeyBinding::REFERENCE;
    text.append(isText ? quoted(bindings[i].getValue()) : bindings[i].getValue());
    separator = ',';
  }
  return text;
}

Boolean CIMObjectPath::identical(const CIMObjectPath& x) const {
  return samePath(pathOf(*this), pathOf(x));
}

Uint32 CIMObjectPath::makeHashCode() const {
  const CIMObjectPathRep& path = pathOf(*this);
  Uint32 hash = hashed(2166136261U, path.host, true);
  hash = hashed(hash, path.nameSpace.getString(), true);
  hash = hashed(hash, path.className.getString(), true);
  const Array<CIMKeyBinding>& bindings = path.keyBindings;
  for (Uint32 i = 0; i < bindings.size(); ++i) {
    hash = hashed(hash, bindings[i].getName().getString(), true);
    // Other types have several texts for one value.
    if (bindings[i].getType() == CIMKeyBinding::STRING) {
      hash = hashed(hash, bindings[i].getValue(), false);
    }
  }
  return hash;
}

Boolean operator==(const CIMObjectPath& x, const CIMObjectPath& y) {
  return x.identical(y);
}
Boolean operator!=(const CIMObjectPath& x, const CIMObjectPath& y) {
  return !x.identical(y);
}

}  // namespace vexor_compat
}  // namespace Pegasus
