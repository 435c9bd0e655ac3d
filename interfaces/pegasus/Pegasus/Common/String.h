#ifndef PEGASUS_COMMON_STRING_H
#define PEGASUS_COMMON_STRING_H

#include <Pegasus/Common/Char16.h>
#include <Pegasus/Common/Config.h>
#include <Pegasus/Common/Linkage.h>

#include <iosfwd>

namespace Pegasus {
inline namespace vexor_compat {

struct StringRep;

// The UTF-8 text of a String; owns its bytes.
class PEGASUS_COMMON_LINKAGE CString {
 public:
  CString();
  CString(const CString& cstr);
  ~CString();
  CString& operator=(const CString& cstr);

  // Never null; valid while this object lives and is not assigned to.
  operator const char*() const;

 private:
  friend class String;
  explicit CString(char* owned);
  char* _text;
};

// Unicode text, held as UTF-16. Copies share their characters until one of them changes.
//
// A char pointer is UTF-8: a null pointer or bytes that are not UTF-8 throw Exception, and the
// String keeps what it held. An index outside the text throws IndexOutOfBoundsException. Changes
// of case and comparisons without case concern the letters A to Z only.
class PEGASUS_COMMON_LINKAGE String {
 public:
  static const String EMPTY;

  String();
  String(const String& str) noexcept;
  String(String&& str) noexcept;
  String(const String& str, Uint32 n);  // the first n characters, or all if there are fewer
  String(const Char16* str);
  String(const Char16* str, Uint32 n);
  String(const char* str);
  String(const char* str, Uint32 n);  // n bytes
  ~String();

  String& operator=(const String& str) noexcept;
  String& operator=(String&& str) noexcept;
  String& assign(const String& str);
  String& assign(const Char16* str);
  String& assign(const Char16* str, Uint32 n);
  String& assign(const char* str);
  String& assign(const char* str, Uint32 n);

  void clear();
  void reserveCapacity(Uint32 capacity);

  // In UTF-16 code units, here and in every index and length below.
  Uint32 size() const;
  // Ends with a zero; valid until the String changes.
  const Char16* getChar16Data() const;
  CString getCString() const;

  Char16& operator[](Uint32 index);
  const Char16 operator[](Uint32 index) const;

  String& append(const Char16& c);
  String& append(const Char16* str, Uint32 n);
  String& append(const String& str);

  // Removes size characters from index on; PEG_NOT_FOUND means up to the end.
  void remove(Uint32 index, Uint32 size = PEG_NOT_FOUND);
  // At most n characters; empty if index is at or past the end.
  String subString(Uint32 index, Uint32 n = PEG_NOT_FOUND) const;

  // The index of the first (last) occurrence, or PEG_NOT_FOUND.
  Uint32 find(Char16 c) const;
  Uint32 find(Uint32 index, Char16 c) const;
  Uint32 find(const String& s) const;
  Uint32 reverseFind(Char16 c) const;

  void toLower();
  void appendPrintf(const char* format, ...) PEGASUS_FORMAT(2, 3);

  // Less than, equal to or greater than 0, by code unit.
  static int compare(const String& s1, const String& s2, Uint32 n);
  static int compare(const String& s1, const String& s2);
  static int compareNoCase(const String& s1, const String& s2);
  static Boolean equal(const String& s1, const String& s2);
  static Boolean equalNoCase(const String& s1, const String& s2);

#ifdef PEGASUS_USE_EXPERIMENTAL_INTERFACES
  String(const String& s1, const String& s2);  // both texts, one after the other
  String(const String& s1, const char* s2);
  String(const char* s1, const String& s2);
  String& operator=(const char* str);
  void toUpper();
  Uint32 find(const char* s) const;
  static Boolean equal(const String& s1, const char* s2);
  static int compare(const String& s1, const char* s2);
  String& append(const char* str);
  String& append(const char* str, Uint32 size);
  static Boolean equalNoCase(const String& s1, const char* s2);
#endif

 private:
  void adopt(StringRep* rep);
  StringRep* _rep;  // null while empty
};

PEGASUS_COMMON_LINKAGE Boolean operator==(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator==(const String& s1, const char* s2);
PEGASUS_COMMON_LINKAGE Boolean operator==(const char* s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const String& s1, const char* s2);
PEGASUS_COMMON_LINKAGE Boolean operator!=(const char* s1, const String& s2);
PEGASUS_COMMON_LINKAGE String operator+(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE String operator+(const String& s1, const char* s2);
PEGASUS_COMMON_LINKAGE String operator+(const char* s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator<(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator<=(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator>(const String& s1, const String& s2);
PEGASUS_COMMON_LINKAGE Boolean operator>=(const String& s1, const String& s2);
// Writes UTF-8.
PEGASUS_COMMON_LINKAGE std::ostream& operator<<(std::ostream& os, const String& s);
PEGASUS_COMMON_LINKAGE std::ostream& operator<<(std::ostream& os, const CString& s);

}  // namespace vexor_compat
}  // namespace Pegasus

#endif
