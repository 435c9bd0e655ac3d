#include <Pegasus/Common/CIMValue.h>

#include <charconv>
#include <type_traits>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {
namespace {

// The CIM type of each C++ type. Alternatives of the storage follow the order of CIMType: null,
// the scalars, the arrays.
constexpr size_t kTypes = 17;

template <class T>
struct TypeOf {};
template <>
struct TypeOf<Boolean> {
  static constexpr CIMType type = CIMTYPE_BOOLEAN;
};
template <>
struct TypeOf<Uint8> {
  static constexpr CIMType type = CIMTYPE_UINT8;
};
template <>
struct TypeOf<Sint8> {
  static constexpr CIMType type = CIMTYPE_SINT8;
};
template <>
struct TypeOf<Uint16> {
  static constexpr CIMType type = CIMTYPE_UINT16;
};
template <>
struct TypeOf<Sint16> {
  static constexpr CIMType type = CIMTYPE_SINT16;
};
template <>
struct TypeOf<Uint32> {
  static constexpr CIMType type = CIMTYPE_UINT32;
};
template <>
struct TypeOf<Sint32> {
  static constexpr CIMType type = CIMTYPE_SINT32;
};
template <>
struct TypeOf<Uint64> {
  static constexpr CIMType type = CIMTYPE_UINT64;
};
template <>
struct TypeOf<Sint64> {
  static constexpr CIMType type = CIMTYPE_SINT64;
};
template <>
struct TypeOf<Real32> {
  static constexpr CIMType type = CIMTYPE_REAL32;
};
template <>
struct TypeOf<Real64> {
  static constexpr CIMType type = CIMTYPE_REAL64;
};
template <>
struct TypeOf<Char16> {
  static constexpr CIMType type = CIMTYPE_CHAR16;
};
template <>
struct TypeOf<String> {
  static constexpr CIMType type = CIMTYPE_STRING;
};
template <>
struct TypeOf<CIMDateTime> {
  static constexpr CIMType type = CIMTYPE_DATETIME;
};
template <>
struct TypeOf<CIMObjectPath> {
  static constexpr CIMType type = CIMTYPE_REFERENCE;
};
template <>
struct TypeOf<CIMObject> {
  static constexpr CIMType type = CIMTYPE_OBJECT;
};
template <>
struct TypeOf<CIMInstance> {
  static constexpr CIMType type = CIMTYPE_INSTANCE;
};

template <class T>
constexpr size_t alternativeOf() {
  return 1 + TypeOf<T>::type;
}

static_assert(std::variant_size_v<CIMValueRep::Storage> == 1 + 2 * kTypes);
static_assert(std::is_same_v<
              std::variant_alternative_t<alternativeOf<Sint64>(), CIMValueRep::Storage>, Sint64>);
static_assert(std::is_same_v<std::variant_alternative_t<kTypes + alternativeOf<CIMInstance>(),
                                                        CIMValueRep::Storage>,
                             Array<CIMInstance>>);

// Embedded objects are handles on something that others may change, so a value keeps a clone.
template <class T>
T independent(const T& x) {
  if constexpr (std::is_same_v<T, CIMObject> || std::is_same_v<T, CIMInstance>) {
    if (x.isUninitialized()) throw UninitializedObjectException();
    return x.clone();
  } else {
    return x;
  }
}

template <class T>
Array<T> independent(const Array<T>& x) {
  if constexpr (std::is_same_v<T, CIMObject> || std::is_same_v<T, CIMInstance>) {
    Array<T> copy;
    copy.reserveCapacity(x.size());
    for (Uint32 i = 0; i < x.size(); ++i)
      copy.append(independent(x[i]));
    return copy;
  } else {
    return x;
  }
}

template <class T>
struct IsArray : std::false_type {};
template <class T>
struct IsArray<Array<T>> : std::true_type {
  using Element = T;
};

template <class T>
constexpr CIMType typeOf() {
  if constexpr (IsArray<T>::value) {
    return TypeOf<typename IsArray<T>::Element>::type;
  } else {
    return TypeOf<T>::type;
  }
}

template <class T>
CIMValueRep* newRep(const T& x) {
  auto* rep = new CIMValueRep;
  try {
    rep->storage = independent(x);
  } catch (...) {
    delete rep;
    throw;
  }
  rep->type = typeOf<T>();
  rep->isArray = IsArray<T>::value;
  return rep;
}

template <class T>
void getFrom(const CIMValue& value, T& x) {
  if (value.getType() != typeOf<T>() || value.isArray() != IsArray<T>::value) {
    throw TypeMismatchException();
  }
  if (value.isNull()) return;
  x = independent(std::get<T>(RepAccess::get(value)->storage));
}

template <class T>
bool same(const T& x, const T& y) {
  if constexpr (std::is_same_v<T, CIMObject> || std::is_same_v<T, CIMInstance>) {
    return x.identical(y);
  } else {
    return x == y;
  }
}

template <class T>
bool same(const Array<T>& x, const Array<T>& y) {
  if (x.size() != y.size()) return false;
  for (Uint32 i = 0; i < x.size(); ++i) {
    if (!same(x[i], y[i])) return false;
  }
  return true;
}

bool same(std::monostate, std::monostate) {
  return true;
}

String asText(Boolean x) {
  return String(x ? "TRUE" : "FALSE");
}
String asText(const Char16& x) {
  return String(&x, 1);
}
String asText(const String& x) {
  return x;
}
String asText(const CIMDateTime& x) {
  return x.toString();
}
String asText(const CIMObjectPath& x) {
  return x.toString();
}
String asText(const CIMObject& x) {
  return x.toString();
}
String asText(const CIMInstance& x) {
  return CIMObject(x).toString();
}
// Numbers, reals with as many digits as it takes to read the same number back. The locale of the
// process has no say in it.
template <class T>
requires std::is_arithmetic_v<T> String asText(const T& x) {
  char text[64];
  const auto end = std::to_chars(text, text + sizeof(text), x).ptr;
  return String(text, static_cast<Uint32>(end - text));
}

// The text of a value, or of each element with the separator between them.
template <class T, class ElementText>
String listed(const Array<T>& x, const char* separator, ElementText elementText) {
  String text;
  for (Uint32 i = 0; i < x.size(); ++i) {
    if (i != 0) text.append(String(separator));
    text.append(elementText(x[i]));
  }
  return text;
}

struct PlainText {
  String operator()(std::monostate) const { return String(); }
  template <class T>
  String operator()(const T& x) const {
    return asText(x);
  }
  template <class T>
  String operator()(const Array<T>& x) const {
    return listed(x, " ", *this);
  }
};

struct MofText {
  String operator()(std::monostate) const { return String("NULL"); }
  template <class T>
  String operator()(const T& x) const {
    if constexpr (std::is_arithmetic_v<T>) {
      return asText(x);
    } else {
      return quoted(asText(x));
    }
  }
  template <class T>
  String operator()(const Array<T>& x) const {
    return String("{") + listed(x, ", ", *this) + String("}");
  }
};

}  // namespace

String toMof(const CIMValue& value) {
  const CIMValueRep* rep = RepAccess::get(value);
  return rep == nullptr ? String("NULL") : std::visit(MofText{}, rep->storage);
}

CIMValue::CIMValue() = default;
CIMValue::CIMValue(CIMType type, Boolean isArray, Uint32 arraySize) {
  setNullValue(type, isArray, arraySize);
}
CIMValue::CIMValue(Boolean x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Uint8 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Sint8 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Uint16 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Sint16 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Uint32 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Sint32 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Uint64 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Sint64 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Real32 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(Real64 x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Char16& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const String& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const CIMDateTime& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const CIMObjectPath& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const CIMObject& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const CIMInstance& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Boolean>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Uint8>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Sint8>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Uint16>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Sint16>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Uint32>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Sint32>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Uint64>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Sint64>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Real32>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Real64>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<Char16>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<String>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<CIMDateTime>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<CIMObjectPath>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<CIMObject>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(const Array<CIMInstance>& x) : CIMValue(newRep(x)) {}
CIMValue::CIMValue(char x) : CIMValue(static_cast<Sint8>(x)) {}
CIMValue::CIMValue(const Array<char>& x) {
  set(x);
}

void CIMValue::assign(const CIMValue& x) {
  *this = x;
}
void CIMValue::clear() {
  *this = CIMValue();
}

Boolean CIMValue::typeCompatible(const CIMValue& x) const {
  return getType() == x.getType() && isArray() == x.isArray();
}

Boolean CIMValue::isArray() const {
  return _rep != nullptr && _rep->isArray;
}
Boolean CIMValue::isNull() const {
  return _rep == nullptr || _rep->isNull();
}

Uint32 CIMValue::getArraySize() const {
  if (!isArray()) return 0;
  return std::visit(
      [this](const auto& x) -> Uint32 {
        if constexpr (IsArray<std::decay_t<decltype(x)>>::value) {
          return x.size();
        } else {
          return _rep->nullArraySize;
        }
      },
      _rep->storage);
}

CIMType CIMValue::getType() const {
  return _rep == nullptr ? CIMTYPE_BOOLEAN : _rep->type;
}

void CIMValue::setNullValue(CIMType type, Boolean isArray, Uint32 arraySize) {
  auto* rep = new CIMValueRep;
  rep->type = type;
  rep->isArray = isArray;
  rep->nullArraySize = arraySize;
  *this = CIMValue(rep);
}

void CIMValue::set(Boolean x) {
  *this = CIMValue(x);
}
void CIMValue::set(Uint8 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Sint8 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Uint16 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Sint16 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Uint32 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Sint32 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Uint64 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Sint64 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Real32 x) {
  *this = CIMValue(x);
}
void CIMValue::set(Real64 x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Char16& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const String& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const CIMDateTime& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const CIMObjectPath& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const CIMObject& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const CIMInstance& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Boolean>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Uint8>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Sint8>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Uint16>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Sint16>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Uint32>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Sint32>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Uint64>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Sint64>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Real32>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Real64>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<Char16>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<String>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<CIMDateTime>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<CIMObjectPath>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<CIMObject>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(const Array<CIMInstance>& x) {
  *this = CIMValue(x);
}
void CIMValue::set(char x) {
  set(static_cast<Sint8>(x));
}
void CIMValue::set(const Array<char>& x) {
  Array<Sint8> numbers;
  numbers.reserveCapacity(x.size());
  for (Uint32 i = 0; i < x.size(); ++i)
    numbers.append(static_cast<Sint8>(x[i]));
  set(numbers);
}

void CIMValue::get(Boolean& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Uint8& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Sint8& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Uint16& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Sint16& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Uint32& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Sint32& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Uint64& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Sint64& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Real32& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Real64& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Char16& x) const {
  getFrom(*this, x);
}
void CIMValue::get(String& x) const {
  getFrom(*this, x);
}
void CIMValue::get(CIMDateTime& x) const {
  getFrom(*this, x);
}
void CIMValue::get(CIMObjectPath& x) const {
  getFrom(*this, x);
}
void CIMValue::get(CIMObject& x) const {
  getFrom(*this, x);
}
void CIMValue::get(CIMInstance& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Boolean>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Uint8>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Sint8>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Uint16>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Sint16>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Uint32>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Sint32>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Uint64>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Sint64>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Real32>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Real64>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<Char16>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<String>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<CIMDateTime>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<CIMObjectPath>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<CIMObject>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(Array<CIMInstance>& x) const {
  getFrom(*this, x);
}
void CIMValue::get(char& x) const {
  auto number = static_cast<Sint8>(x);
  get(number);
  x = static_cast<char>(number);
}
void CIMValue::get(Array<char>& x) const {
  Array<Sint8> numbers;
  get(numbers);
  if (isNull()) return;
  x.clear();
  x.reserveCapacity(numbers.size());
  for (Uint32 i = 0; i < numbers.size(); ++i)
    x.append(static_cast<char>(numbers[i]));
}

Boolean CIMValue::equal(const CIMValue& x) const {
  if (!typeCompatible(x) || isNull() != x.isNull()) return false;
  if (isNull() || _rep == x._rep) return true;
  return std::visit(
      [&x](const auto& mine) {
        return same(mine, std::get<std::decay_t<decltype(mine)>>(x._rep->storage));
      },
      _rep->storage);
}

String CIMValue::toString() const {
  return _rep == nullptr ? String() : std::visit(PlainText{}, _rep->storage);
}

Boolean operator==(const CIMValue& x, const CIMValue& y) {
  return x.equal(y);
}
Boolean operator!=(const CIMValue& x, const CIMValue& y) {
  return !x.equal(y);
}

const char* cimTypeToString(CIMType type) {
  static constexpr const char* names[kTypes] = {
      "boolean", "uint8",    "sint8",     "uint16", "sint16",  "uint32",
      "sint32",  "uint64",   "sint64",    "real32", "real64",  "char16",
      "string",  "datetime", "reference", "object", "instance"};
  const auto index = static_cast<size_t>(type);
  return index < kTypes ? names[index] : "unknown";
}

}  // namespace vexor_compat
}  // namespace Pegasus
