#include <Pegasus/Common/Exception.h>
#include <Pegasus/Common/String.h>

#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstring>
#include <limits>
#include <new>
#include <ostream>
#include <utility>
#include <vector>

#include "pegasus_compat/utf.h"

namespace Pegasus {
inline namespace vexor_compat {

// The characters and their final zero follow in the same block.
struct StringRep {
  std::atomic<Uint32> refs;
  Uint32 size;
  Uint32 capacity;

  Char16* data() { return reinterpret_cast<Char16*>(this + 1); }
};

namespace {

constexpr Char16 noCharacters[1] = {};

// A block for capacity characters, of which size will be written by the caller.
StringRep* allocate(size_t size, size_t capacity) {
  if (capacity > std::numeric_limits<Uint32>::max() - 1) throw std::bad_alloc();
  void* block = ::operator new(sizeof(StringRep) + (capacity + 1) * sizeof(Char16));
  auto* rep = new (block) StringRep{{1}, static_cast<Uint32>(size), static_cast<Uint32>(capacity)};
  rep->data()[size] = 0;
  return rep;
}

void release(StringRep* rep) {
  if (rep == nullptr) return;
  if (rep->refs.fetch_sub(1, std::memory_order_acq_rel) == 1) ::operator delete(rep);
}

StringRep* retained(StringRep* rep) {
  if (rep != nullptr) rep->refs.fetch_add(1, std::memory_order_relaxed);
  return rep;
}

void copyUnits(Char16* to, const Char16* from, size_t n) {
  if (n != 0) std::memmove(to, from, n * sizeof(Char16));
}

StringRep* fromUnits(const Char16* first, size_t n1, const Char16* second = nullptr,
                     size_t n2 = 0) {
  if (n1 + n2 == 0) return nullptr;
  StringRep* rep = allocate(n1 + n2, n1 + n2);
  copyUnits(rep->data(), first, n1);
  copyUnits(rep->data() + n1, second, n2);
  return rep;
}

StringRep* fromUtf8(const char* text, size_t n) {
  const size_t units = utf16Length(text, n);
  if (units == 0) return nullptr;
  StringRep* rep = allocate(units, units);
  toUtf16(text, n, rep->data());
  return rep;
}

const char* checkedText(const char* text) {
  if (text == nullptr) throw Exception(String("null pointer"));
  return text;
}

StringRep* fromText(const char* text) {
  checkedText(text);
  return fromUtf8(text, std::strlen(text));
}

StringRep* fromText(const char* text, size_t n) {
  return n == 0 ? nullptr : fromUtf8(checkedText(text), n);
}

size_t length(const Char16* text) {
  if (text == nullptr) throw Exception(String("null pointer"));
  size_t n = 0;
  while (text[n] != 0)
    ++n;
  return n;
}

const Char16* checkedUnits(const Char16* text, Uint32 n) {
  if (text == nullptr && n != 0) throw Exception(String("null pointer"));
  return text;
}

// A block of this String's own with room for capacity characters. Grows by half, so that
// appending n characters one by one costs O(n).
StringRep* grown(StringRep* rep, size_t capacity) {
  const size_t size = rep == nullptr ? 0 : rep->size;
  if (rep != nullptr && capacity > rep->capacity && rep->capacity != 0) {
    capacity = std::max<size_t>(capacity, rep->capacity + rep->capacity / 2 + 8);
    capacity = std::min<size_t>(capacity, std::numeric_limits<Uint32>::max() - 1);
  }
  StringRep* copy = allocate(size, std::max(capacity, size));
  if (rep != nullptr) copyUnits(copy->data(), rep->data(), size);
  return copy;
}

bool writable(const StringRep* rep, size_t capacity) {
  return rep != nullptr && rep->capacity >= capacity &&
         rep->refs.load(std::memory_order_acquire) == 1;
}

Uint16 lower(Uint16 c) {
  return c >= 'A' && c <= 'Z' ? static_cast<Uint16>(c + 32) : c;
}
Uint16 upper(Uint16 c) {
  return c >= 'a' && c <= 'z' ? static_cast<Uint16>(c - 32) : c;
}

template <class Fold>
int compareUnits(const Char16* s1, size_t n1, const Char16* s2, size_t n2, Fold fold) {
  const size_t common = std::min(n1, n2);
  for (size_t i = 0; i < common; ++i) {
    const int difference = int{fold(s1[i])} - int{fold(s2[i])};
    if (difference != 0) return difference;
  }
  return n1 < n2 ? -1 : n1 > n2 ? 1 : 0;
}

Uint16 same(Uint16 c) {
  return c;
}

}  // namespace

CString::CString() : _text(nullptr) {}
CString::CString(char* owned) : _text(owned) {}
CString::CString(const CString& cstr) : _text(nullptr) {
  *this = cstr;
}
CString::~CString() {
  delete[] _text;
}

CString& CString::operator=(const CString& cstr) {
  if (this == &cstr) return *this;
  char* copy = nullptr;
  if (cstr._text != nullptr) {
    const size_t bytes = std::strlen(cstr._text) + 1;
    copy = new char[bytes];
    std::memcpy(copy, cstr._text, bytes);
  }
  delete[] _text;
  _text = copy;
  return *this;
}

CString::operator const char*() const {
  return _text == nullptr ? "" : _text;
}

const String String::EMPTY;

String::String() : _rep(nullptr) {}
String::String(const String& str) noexcept : _rep(retained(str._rep)) {}
String::String(String&& str) noexcept : _rep(std::exchange(str._rep, nullptr)) {}
String::String(const String& str, Uint32 n)
    : _rep(n >= str.size() ? retained(str._rep) : fromUnits(str.getChar16Data(), n)) {}
String::String(const Char16* str) : _rep(fromUnits(str, length(str))) {}
String::String(const Char16* str, Uint32 n) : _rep(fromUnits(checkedUnits(str, n), n)) {}
String::String(const char* str) : _rep(fromText(str)) {}
String::String(const char* str, Uint32 n) : _rep(fromText(str, n)) {}
String::String(const String& s1, const String& s2)
    : _rep(fromUnits(s1.getChar16Data(), s1.size(), s2.getChar16Data(), s2.size())) {}
String::String(const String& s1, const char* s2) : String(s1, String(s2)) {}
String::String(const char* s1, const String& s2) : String(String(s1), s2) {}
String::~String() {
  release(_rep);
}

// Takes over a reference. What str pointed to may be part of the old text, so that goes last.
void String::adopt(StringRep* rep) {
  release(std::exchange(_rep, rep));
}

String& String::operator=(const String& str) noexcept {
  if (this != &str) adopt(retained(str._rep));
  return *this;
}

String& String::operator=(String&& str) noexcept {
  if (this != &str) adopt(std::exchange(str._rep, nullptr));
  return *this;
}

String& String::operator=(const char* str) {
  return assign(str);
}

String& String::assign(const String& str) {
  return *this = str;
}

String& String::assign(const Char16* str) {
  adopt(fromUnits(str, length(str)));
  return *this;
}

String& String::assign(const Char16* str, Uint32 n) {
  adopt(fromUnits(checkedUnits(str, n), n));
  return *this;
}

String& String::assign(const char* str) {
  adopt(fromText(str));
  return *this;
}

String& String::assign(const char* str, Uint32 n) {
  adopt(fromText(str, n));
  return *this;
}

void String::clear() {
  adopt(nullptr);
}

void String::reserveCapacity(Uint32 capacity) {
  if (!writable(_rep, capacity)) adopt(grown(_rep, capacity));
}

Uint32 String::size() const {
  return _rep == nullptr ? 0 : _rep->size;
}

const Char16* String::getChar16Data() const {
  return _rep == nullptr ? noCharacters : _rep->data();
}

CString String::getCString() const {
  const size_t bytes = toUtf8(getChar16Data(), size(), nullptr);
  char* text = new char[bytes + 1];
  toUtf8(getChar16Data(), size(), text);
  text[bytes] = '\0';
  return CString(text);
}

Char16& String::operator[](Uint32 index) {
  if (index >= size()) throw IndexOutOfBoundsException();
  if (!writable(_rep, 0)) adopt(grown(_rep, size()));
  return _rep->data()[index];
}

const Char16 String::operator[](Uint32 index) const {
  if (index >= size()) throw IndexOutOfBoundsException();
  return _rep->data()[index];
}

String& String::append(const Char16& c) {
  const Char16 unit = c;
  return append(&unit, 1);
}

String& String::append(const Char16* str, Uint32 n) {
  if (n == 0) return *this;
  checkedUnits(str, n);
  const size_t total = size_t{size()} + n;
  StringRep* to = writable(_rep, total) ? _rep : grown(_rep, total);
  copyUnits(to->data() + to->size, str, n);
  to->size = static_cast<Uint32>(total);
  to->data()[total] = 0;
  if (to != _rep) adopt(to);
  return *this;
}

String& String::append(const String& str) {
  if (_rep == nullptr) return *this = str;
  return append(str.getChar16Data(), str.size());
}

String& String::append(const char* str) {
  return append(String(str));
}
String& String::append(const char* str, Uint32 size) {
  return append(String(str, size));
}

void String::remove(Uint32 index, Uint32 size) {
  const Uint32 total = this->size();
  const Uint32 count = size == PEG_NOT_FOUND && index <= total ? total - index : size;
  if (index > total || count > total - index) throw IndexOutOfBoundsException();
  if (count == 0) return;
  adopt(fromUnits(getChar16Data(), index, getChar16Data() + index + count, total - index - count));
}

String String::subString(Uint32 index, Uint32 n) const {
  if (index >= size()) return String();
  return String(getChar16Data() + index, std::min(n, size() - index));
}

Uint32 String::find(Char16 c) const {
  return find(0, c);
}

Uint32 String::find(Uint32 index, Char16 c) const {
  const Char16* data = getChar16Data();
  for (Uint32 i = index; i < size(); ++i) {
    if (data[i] == c) return i;
  }
  return PEG_NOT_FOUND;
}

Uint32 String::find(const String& s) const {
  const Char16* data = getChar16Data();
  const Char16* found =
      std::search(data, data + size(), s.getChar16Data(), s.getChar16Data() + s.size());
  const auto index = static_cast<Uint32>(found - data);
  return index == size() && s.size() != 0 ? PEG_NOT_FOUND : index;
}

Uint32 String::find(const char* s) const {
  return find(String(s));
}

Uint32 String::reverseFind(Char16 c) const {
  const Char16* data = getChar16Data();
  for (Uint32 i = size(); i > 0; --i) {
    if (data[i - 1] == c) return i - 1;
  }
  return PEG_NOT_FOUND;
}

void String::toLower() {
  for (Uint32 i = 0; i < size(); ++i) {
    const Uint16 c = getChar16Data()[i];
    if (lower(c) != c) (*this)[i] = lower(c);
  }
}

void String::toUpper() {
  for (Uint32 i = 0; i < size(); ++i) {
    const Uint16 c = getChar16Data()[i];
    if (upper(c) != c) (*this)[i] = upper(c);
  }
}

void String::appendPrintf(const char* format, ...) {
  char shortText[256];
  va_list arguments;
  va_start(arguments, format);
  const int bytes = std::vsnprintf(shortText, sizeof(shortText), format, arguments);
  va_end(arguments);
  if (bytes < 0) throw Exception(String("the format cannot be carried out"));
  if (static_cast<size_t>(bytes) < sizeof(shortText)) {
    append(String(shortText, static_cast<Uint32>(bytes)));
    return;
  }
  std::vector<char> text(static_cast<size_t>(bytes) + 1);
  va_start(arguments, format);
  std::vsnprintf(text.data(), text.size(), format, arguments);
  va_end(arguments);
  append(String(text.data(), static_cast<Uint32>(bytes)));
}

int String::compare(const String& s1, const String& s2, Uint32 n) {
  return compareUnits(s1.getChar16Data(), std::min(s1.size(), n), s2.getChar16Data(),
                      std::min(s2.size(), n), same);
}

int String::compare(const String& s1, const String& s2) {
  return compareUnits(s1.getChar16Data(), s1.size(), s2.getChar16Data(), s2.size(), same);
}

int String::compare(const String& s1, const char* s2) {
  return compare(s1, String(s2));
}

int String::compareNoCase(const String& s1, const String& s2) {
  return compareUnits(s1.getChar16Data(), s1.size(), s2.getChar16Data(), s2.size(), lower);
}

Boolean String::equal(const String& s1, const String& s2) {
  if (s1._rep == s2._rep) return true;
  if (s1.size() != s2.size()) return false;
  return s1.size() == 0 ||
         std::memcmp(s1.getChar16Data(), s2.getChar16Data(), s1.size() * sizeof(Char16)) == 0;
}

Boolean String::equal(const String& s1, const char* s2) {
  return equal(s1, String(s2));
}

Boolean String::equalNoCase(const String& s1, const String& s2) {
  if (s1._rep == s2._rep) return true;
  if (s1.size() != s2.size()) return false;
  // From the end: the names of a class often begin alike.
  const Char16* data1 = s1.getChar16Data();
  const Char16* data2 = s2.getChar16Data();
  for (Uint32 i = s1.size(); i > 0; --i) {
    if (lower(data1[i - 1]) != lower(data2[i - 1])) return false;
  }
  return true;
}

Boolean String::equalNoCase(const String& s1, const char* s2) {
  return equalNoCase(s1, String(s2));
}

Boolean operator==(const String& s1, const String& s2) {
  return String::equal(s1, s2);
}
Boolean operator==(const String& s1, const char* s2) {
  return String::equal(s1, String(s2));
}
Boolean operator==(const char* s1, const String& s2) {
  return String::equal(String(s1), s2);
}
Boolean operator!=(const String& s1, const String& s2) {
  return !(s1 == s2);
}
Boolean operator!=(const String& s1, const char* s2) {
  return !(s1 == s2);
}
Boolean operator!=(const char* s1, const String& s2) {
  return !(s1 == s2);
}
String operator+(const String& s1, const String& s2) {
  return String(s1, s2);
}
String operator+(const String& s1, const char* s2) {
  return String(s1, s2);
}
String operator+(const char* s1, const String& s2) {
  return String(s1, s2);
}
Boolean operator<(const String& s1, const String& s2) {
  return String::compare(s1, s2) < 0;
}
Boolean operator<=(const String& s1, const String& s2) {
  return String::compare(s1, s2) <= 0;
}
Boolean operator>(const String& s1, const String& s2) {
  return String::compare(s1, s2) > 0;
}
Boolean operator>=(const String& s1, const String& s2) {
  return String::compare(s1, s2) >= 0;
}

std::ostream& operator<<(std::ostream& os, const String& s) {
  return os << s.getCString();
}

std::ostream& operator<<(std::ostream& os, const CString& s) {
  return os << static_cast<const char*>(s);
}

}  // namespace vexor_compat
}  // namespace Pegasus
