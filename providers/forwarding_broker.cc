#include "providers/forwarding_broker.h"

#include <cstdint>
#include <limits>
#include <new>

#include "providers/names.h"

namespace vexor::providers {
namespace {

CMPIStatus status_of(CMPIrc code) {
  return {code, nullptr};
}

void report(CMPIStatus* rc, CMPIrc code) {
  if (rc != nullptr) *rc = status_of(code);
}

// A whole number of any type: its value is `magnitude`, or its negative.
struct Whole {
  bool negative = false;
  uint64_t magnitude = 0;
};

Whole whole(int64_t value) {
  if (value >= 0) return {false, static_cast<uint64_t>(value)};
  return {true, uint64_t{0} - static_cast<uint64_t>(value)};
}

bool read_whole(const CMPIValue& from, CMPIType type, Whole& number) {
  switch (type) {
    case CMPI_uint8:
      number = {false, from.uint8};
      return true;
    case CMPI_uint16:
      number = {false, from.uint16};
      return true;
    case CMPI_uint32:
      number = {false, from.uint32};
      return true;
    case CMPI_uint64:
      number = {false, from.uint64};
      return true;
    case CMPI_sint8:
      number = whole(from.sint8);
      return true;
    case CMPI_sint16:
      number = whole(from.sint16);
      return true;
    case CMPI_sint32:
      number = whole(from.sint32);
      return true;
    case CMPI_sint64:
      number = whole(from.sint64);
      return true;
    default:
      return false;
  }
}

template <class Number>
bool write_whole(const Whole& number, Number& to) {
  constexpr auto largest = static_cast<uint64_t>(std::numeric_limits<Number>::max());
  if (number.negative) {
    if (!std::numeric_limits<Number>::is_signed || number.magnitude > largest + 1) return false;
    to = static_cast<Number>(uint64_t{0} - number.magnitude);
    return true;
  }
  if (number.magnitude > largest) return false;
  to = static_cast<Number>(number.magnitude);
  return true;
}

bool write_whole(const Whole& number, CMPIType type, CMPIValue& to) {
  switch (type) {
    case CMPI_uint8:
      return write_whole(number, to.uint8);
    case CMPI_uint16:
      return write_whole(number, to.uint16);
    case CMPI_uint32:
      return write_whole(number, to.uint32);
    case CMPI_uint64:
      return write_whole(number, to.uint64);
    case CMPI_sint8:
      return write_whole(number, to.sint8);
    case CMPI_sint16:
      return write_whole(number, to.sint16);
    case CMPI_sint32:
      return write_whole(number, to.sint32);
    case CMPI_sint64:
      return write_whole(number, to.sint64);
    default:
      return false;
  }
}

bool only_element(const CMPIArray* array, CMPIData& element) {
  if (array == nullptr || array->hdl == nullptr) return false;
  CMPIStatus status = status_of(CMPI_RC_OK);
  if (array->ft->getSize(array, &status) != 1 || status.rc != CMPI_RC_OK) return false;
  element = array->ft->getElementAt(array, 0, &status);
  return status.rc == CMPI_RC_OK && element.state == CMPI_goodValue;
}

}  // namespace

bool convert(const CMPIValue& from, CMPIType type, CMPIType declared, CMPIValue& to) {
  if ((type & CMPI_ARRAY) != 0) {
    CMPIData element{};
    if (!only_element(from.array, element) || (element.type & CMPI_ARRAY) != 0) return false;
    return convert(element.value, element.type, declared, to);
  }
  Whole number;
  if (read_whole(from, type, number)) return write_whole(number, declared, to);
  if (type != declared) return false;
  to = from;
  return true;
}

CMPIBrokerEncFT ForwardingBroker::encapsulated_table = [] {
  CMPIBrokerEncFT table{};
  table.ftVersion = CMPICurrentVersion;
  table.newObjectPath = new_object_path;
  table.newInstance = new_instance;
  table.newArray = new_array;
  return table;
}();

CMPIInstanceFT ForwardingBroker::instance_table = [] {
  CMPIInstanceFT table{};
  table.ftVersion = CMPICurrentVersion;
  table.setProperty = set_property;
  // Headers differ in whether the instance is constant here.
  table.setPropertyFilter = [](auto*, const char**, const char**) { return status_of(CMPI_RC_OK); };
  return table;
}();

ForwardingBroker::ForwardingBroker(const CMPIBroker* real, const Shape& shape)
    : real_(real), shape_(shape), broker_table_{}, face_{} {
  broker_table_.brokerVersion = real->bft->brokerVersion;
  broker_table_.brokerName = real->bft->brokerName;
  face_.hdl = this;
  face_.bft = &broker_table_;
  face_.eft = &encapsulated_table;
}

const ForwardingBroker& ForwardingBroker::of(const CMPIBroker* face) {
  return *static_cast<const ForwardingBroker*>(face->hdl);
}

const ForwardingBroker::Instance& ForwardingBroker::of(const CMPIInstance* face) {
  return *static_cast<const Instance*>(face->hdl);
}

CMPIInstance* ForwardingBroker::real_instance(CMPIInstance* made) {
  return made != nullptr ? of(made).real : nullptr;
}

CMPIObjectPath* ForwardingBroker::new_object_path(const CMPIBroker* face, const char* name_space,
                                                  const char* class_name, CMPIStatus* rc) {
  const CMPIBroker* real = of(face).real_;
  return real->eft->newObjectPath(real, name_space, class_name, rc);
}

CMPIInstance* ForwardingBroker::new_instance(const CMPIBroker* face, const CMPIObjectPath* path,
                                             CMPIStatus* rc) {
  auto& broker = *static_cast<ForwardingBroker*>(face->hdl);
  const CMPIBroker* real = broker.real_;
  CMPIInstance* instance = real->eft->newInstance(real, path, rc);
  if (instance == nullptr || instance->hdl == nullptr) return nullptr;
  // Also told to the object manager, so that a reply holds no empty properties beside those asked
  // for.
  if (broker.shape_.properties != nullptr && instance->ft->setPropertyFilter != nullptr)
    instance->ft->setPropertyFilter(instance, broker.shape_.properties,
                                    const_cast<const char**>(broker.shape_.keys));
  try {
    Instance& made = broker.instances_.emplace_front(Instance{{}, instance, &broker});
    made.face.hdl = &made;
    made.face.ft = &instance_table;
    return &made.face;
  } catch (const std::bad_alloc&) {
    report(rc, CMPI_RC_ERR_FAILED);
    return nullptr;
  }
}

CMPIArray* ForwardingBroker::new_array(const CMPIBroker* face, CMPICount count, CMPIType type,
                                       CMPIStatus* rc) {
  const CMPIBroker* real = of(face).real_;
  return real->eft->newArray(real, count, type, rc);
}

bool ForwardingBroker::wanted(const char* property) const {
  return shape_.properties == nullptr || is_in(property, shape_.properties) ||
         is_in(property, shape_.keys);
}

CMPIType ForwardingBroker::declared_type(const char* property, CMPIType as_set) const {
  for (const TypeDifference& difference : shape_.differences)
    if (same_name(difference.property, property)) return difference.declared;
  return as_set;
}

CMPIStatus ForwardingBroker::set_property(const CMPIInstance* face, const char* name,
                                          const CMPIValue* value, CMPIType type) {
  const Instance& instance = of(face);
  const CMPIInstance* real = instance.real;
  if (!instance.broker->wanted(name)) return status_of(CMPI_RC_OK);
  const CMPIType declared = instance.broker->declared_type(name, type);
  if (declared == type || value == nullptr)
    return real->ft->setProperty(real, name, value, declared);
  CMPIValue converted{};
  // A text is its own value: there is no CMPIValue behind the pointer.
  if (type == CMPI_chars || !convert(*value, type, declared, converted))
    return status_of(CMPI_RC_ERR_TYPE_MISMATCH);
  return real->ft->setProperty(real, name, &converted, declared);
}

// The list is the request's, which already acts: see new_instance and wanted.

}  // namespace vexor::providers
