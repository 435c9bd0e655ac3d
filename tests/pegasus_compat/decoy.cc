// Another library of these classes, as far as the dynamic linker can tell: the same names in the
// plain namespace. Every call is counted and does nothing sensible.

namespace {

int calls = 0;
char nothing[64] = "decoy";

}  // namespace

extern "C" __attribute__((visibility("default"))) int pegasus_decoy_calls() {
  return calls;
}

// What a source that was compiled against the plain names would call.
extern "C" __attribute__((visibility("default"))) void pegasus_decoy_use();

#define PLAIN __attribute__((visibility("default")))

namespace Pegasus {

class PLAIN CString {
 public:
  CString();
  ~CString();
  operator const char*() const;
};

class PLAIN String {
 public:
  static const String EMPTY;
  String();
  String(const String&);
  String(const char*);
  String(const char*, unsigned int);
  ~String();
  String& operator=(const String&);
  String& assign(const char*);
  unsigned int size() const;
  CString getCString() const;
  String& append(const String&);
  static bool equal(const String&, const String&);
  static bool equalNoCase(const String&, const String&);

 private:
  void* _rep;
};

PLAIN bool operator==(const String&, const String&);
PLAIN bool operator==(const String&, const char*);
PLAIN String operator+(const String&, const String&);

class PLAIN CIMName {
 public:
  CIMName();
  CIMName(const String&);
  CIMName(const char*);
  const String& getString() const;
  bool equal(const CIMName&) const;

 private:
  String _name;
};

class PLAIN CIMNamespaceName {
 public:
  CIMNamespaceName(const char*);

 private:
  String _name;
};

template <class T>
class PLAIN Array {
 public:
  Array();
  Array(const Array&);
  ~Array();
  unsigned int size() const;
  T& operator[](unsigned int);
  void append(const T&);

 private:
  void* _rep;
};

class PLAIN CIMValue {
 public:
  CIMValue();
  CIMValue(const String&);
  CIMValue(unsigned int);
  ~CIMValue();
  String toString() const;

 private:
  void* _rep;
};

class PLAIN CIMProperty {
 public:
  CIMProperty();
  CIMProperty(const CIMName&, const CIMValue&, unsigned int, const CIMName&, const CIMName&, bool);
  CIMProperty(const CIMProperty&);
  ~CIMProperty();
  const CIMName& getName() const;

 private:
  void* _rep;
};

class PLAIN CIMInstance {
 public:
  CIMInstance();
  CIMInstance(const CIMName&);
  CIMInstance(const CIMInstance&);
  ~CIMInstance();
  CIMInstance& addProperty(const CIMProperty&);
  CIMProperty getProperty(unsigned int);
  unsigned int getPropertyCount() const;

 private:
  void* _rep;
};

class PLAIN CIMObjectPath {
 public:
  CIMObjectPath();
  CIMObjectPath(const String&);
  ~CIMObjectPath();
  String toString() const;

 private:
  void* _rep;
};

class PLAIN Exception {
 public:
  Exception(const String&);
  Exception(const Exception&);
  virtual ~Exception();
  virtual const String& getMessage() const;

 private:
  String _message;
};

class PLAIN System {
 public:
  static String getHostName();
};

CString::CString() {
  ++calls;
}
CString::~CString() {
  ++calls;
}
CString::operator const char*() const {
  ++calls;
  return nothing;
}

const String String::EMPTY;
String::String() : _rep(nothing) {
  ++calls;
}
String::String(const String&) : _rep(nothing) {
  ++calls;
}
String::String(const char*) : _rep(nothing) {
  ++calls;
}
String::String(const char*, unsigned int) : _rep(nothing) {
  ++calls;
}
String::~String() {
  ++calls;
  _rep = nullptr;
}
String& String::operator=(const String&) {
  ++calls;
  return *this;
}
String& String::assign(const char*) {
  ++calls;
  return *this;
}
unsigned int String::size() const {
  ++calls;
  return _rep == nothing ? 4711 : 0;
}
CString String::getCString() const {
  ++calls;
  return CString();
}
String& String::append(const String&) {
  ++calls;
  return *this;
}
bool String::equal(const String&, const String&) {
  return ++calls < 0;
}
bool String::equalNoCase(const String&, const String&) {
  return ++calls < 0;
}
bool operator==(const String&, const String&) {
  return ++calls < 0;
}
bool operator==(const String&, const char*) {
  return ++calls < 0;
}
String operator+(const String&, const String&) {
  ++calls;
  return String();
}

CIMName::CIMName() {
  ++calls;
}
CIMName::CIMName(const String&) {
  ++calls;
}
CIMName::CIMName(const char*) {
  ++calls;
}
const String& CIMName::getString() const {
  ++calls;
  return _name;
}
bool CIMName::equal(const CIMName&) const {
  return ++calls < 0;
}
CIMNamespaceName::CIMNamespaceName(const char*) {
  ++calls;
}

template <class T>
Array<T>::Array() : _rep(nothing) {
  ++calls;
}
template <class T>
Array<T>::Array(const Array&) : _rep(nothing) {
  ++calls;
}
template <class T>
Array<T>::~Array() {
  ++calls;
  _rep = nullptr;
}
template <class T>
unsigned int Array<T>::size() const {
  ++calls;
  return _rep == nothing ? 4711 : 0;
}
template <class T>
T& Array<T>::operator[](unsigned int) {
  ++calls;
  return *reinterpret_cast<T*>(nothing);
}
template <class T>
void Array<T>::append(const T&) {
  ++calls;
}
template class Array<unsigned int>;
template class Array<String>;

CIMValue::CIMValue() : _rep(nothing) {
  ++calls;
}
CIMValue::CIMValue(const String&) : _rep(nothing) {
  ++calls;
}
CIMValue::CIMValue(unsigned int) : _rep(nothing) {
  ++calls;
}
CIMValue::~CIMValue() {
  ++calls;
  _rep = nullptr;
}
String CIMValue::toString() const {
  ++calls;
  return _rep == nothing ? String() : String("");
}

CIMProperty::CIMProperty() : _rep(nothing) {
  ++calls;
}
CIMProperty::CIMProperty(const CIMName&, const CIMValue&, unsigned int, const CIMName&,
                         const CIMName&, bool)
    : _rep(nothing) {
  ++calls;
}
CIMProperty::CIMProperty(const CIMProperty&) : _rep(nothing) {
  ++calls;
}
CIMProperty::~CIMProperty() {
  ++calls;
  _rep = nullptr;
}
const CIMName& CIMProperty::getName() const {
  ++calls;
  static const CIMName name;
  return name;
}

CIMInstance::CIMInstance() : _rep(nothing) {
  ++calls;
}
CIMInstance::CIMInstance(const CIMName&) : _rep(nothing) {
  ++calls;
}
CIMInstance::CIMInstance(const CIMInstance&) : _rep(nothing) {
  ++calls;
}
CIMInstance::~CIMInstance() {
  ++calls;
  _rep = nullptr;
}
CIMInstance& CIMInstance::addProperty(const CIMProperty&) {
  ++calls;
  return *this;
}
CIMProperty CIMInstance::getProperty(unsigned int) {
  ++calls;
  return CIMProperty();
}
unsigned int CIMInstance::getPropertyCount() const {
  ++calls;
  return _rep == nothing ? 4711 : 0;
}

CIMObjectPath::CIMObjectPath() : _rep(nothing) {
  ++calls;
}
CIMObjectPath::CIMObjectPath(const String&) : _rep(nothing) {
  ++calls;
}
CIMObjectPath::~CIMObjectPath() {
  ++calls;
  _rep = nullptr;
}
String CIMObjectPath::toString() const {
  ++calls;
  return _rep == nothing ? String() : String("");
}

Exception::Exception(const String&) {
  ++calls;
}
Exception::Exception(const Exception&) {
  ++calls;
}
Exception::~Exception() {
  ++calls;
}
const String& Exception::getMessage() const {
  ++calls;
  return _message;
}

String System::getHostName() {
  ++calls;
  return String();
}

}  // namespace Pegasus

void pegasus_decoy_use() {
  const Pegasus::String text("plain");
}
