#include <Pegasus/Common/Array.h>

#include <algorithm>
#include <atomic>
#include <limits>
#include <memory>
#include <new>
#include <type_traits>

#include "pegasus_compat/reps.h"

namespace Pegasus {
inline namespace vexor_compat {

// The elements follow in the same block.
template <class T>
struct alignas(std::max_align_t) Array<T>::Rep {
  std::atomic<Uint32> refs;
  Uint32 size;
  Uint32 capacity;

  T* items() { return reinterpret_cast<T*>(this + 1); }
  bool shared() const { return refs.load(std::memory_order_acquire) != 1; }

  static Rep* allocate(size_t capacity) {
    if (capacity > std::numeric_limits<Uint32>::max()) throw std::bad_alloc();
    void* block = ::operator new(sizeof(Rep) + capacity * sizeof(T));
    return new (block) Rep{{1}, 0, static_cast<Uint32>(capacity)};
  }

  static Rep* retained(Rep* rep) {
    if (rep != nullptr) rep->refs.fetch_add(1, std::memory_order_relaxed);
    return rep;
  }

  static void release(Rep* rep) {
    if (rep == nullptr || rep->refs.fetch_sub(1, std::memory_order_acq_rel) != 1) return;
    std::destroy_n(rep->items(), rep->size);
    ::operator delete(rep);
  }

  // A block of one owner with the same elements and room for capacity of them. Elements are moved
  // out of a block that has no other owner.
  static Rep* withRoomFor(Rep* rep, size_t capacity) {
    Rep* copy = allocate(capacity);
    if (rep == nullptr) return copy;
    if (rep->shared()) {
      std::uninitialized_copy_n(rep->items(), rep->size, copy->items());
    } else {
      std::uninitialized_move_n(rep->items(), rep->size, copy->items());
    }
    copy->size = rep->size;
    return copy;
  }

  static size_t grownCapacity(const Rep* rep, size_t needed) {
    if (rep == nullptr || needed <= rep->capacity) return needed;
    const size_t doubled = std::max<size_t>(size_t{2} * rep->capacity, 8);
    return std::max(needed, std::min<size_t>(doubled, std::numeric_limits<Uint32>::max()));
  }

  // Moves the elements from index on by n places; the gap holds no objects.
  void openGap(Uint32 index, Uint32 n) {
    for (Uint32 i = size; i > index; --i) {
      new (items() + i - 1 + n) T(std::move(items()[i - 1]));
      std::destroy_at(items() + i - 1);
    }
  }

  // Moves the elements from index + n on down by n places, over a gap that holds no objects.
  void closeGap(Uint32 index, Uint32 n) {
    for (Uint32 i = index + n; i < size; ++i) {
      new (items() + i - n) T(std::move(items()[i]));
      std::destroy_at(items() + i);
    }
  }
};

template <class T>
Array<T>::Array() : _rep(nullptr) {
  // Moves and gaps above rely on it.
  static_assert(std::is_nothrow_copy_constructible_v<T> && std::is_nothrow_move_constructible_v<T>);
}

template <class T>
Array<T>::Array(const Array<T>& x) noexcept : _rep(Rep::retained(x._rep)) {}

template <class T>
Array<T>::Array(Array<T>&& x) noexcept : _rep(std::exchange(x._rep, nullptr)) {}

template <class T>
Array<T>::Array(Uint32 size) : _rep(Rep::allocate(size)) {
  std::uninitialized_value_construct_n(_rep->items(), size);
  _rep->size = size;
}

template <class T>
Array<T>::Array(Uint32 size, const T& x) : _rep(Rep::allocate(size)) {
  std::uninitialized_fill_n(_rep->items(), size, x);
  _rep->size = size;
}

template <class T>
Array<T>::Array(const T* items, Uint32 size) : _rep(Rep::allocate(size)) {
  std::uninitialized_copy_n(items, size, _rep->items());
  _rep->size = size;
}

template <class T>
Array<T>::~Array() {
  Rep::release(_rep);
}

template <class T>
Array<T>& Array<T>::operator=(const Array<T>& x) noexcept {
  Rep* old = std::exchange(_rep, Rep::retained(x._rep));
  Rep::release(old);
  return *this;
}

template <class T>
Array<T>& Array<T>::operator=(Array<T>&& x) noexcept {
  if (this != &x) {
    Rep* old = std::exchange(_rep, std::exchange(x._rep, nullptr));
    Rep::release(old);
  }
  return *this;
}

template <class T>
void Array<T>::clear() {
  Rep::release(std::exchange(_rep, nullptr));
}

template <class T>
void Array<T>::reserveCapacity(Uint32 capacity) {
  if (_rep != nullptr && !_rep->shared() && _rep->capacity >= capacity) return;
  Rep* old = std::exchange(_rep, Rep::withRoomFor(_rep, std::max(capacity, size())));
  Rep::release(old);
}

template <class T>
void Array<T>::grow(Uint32 size, const T& x) {
  const T item = x;
  reserveCapacity(static_cast<Uint32>(
      std::min<size_t>(size_t{this->size()} + size, std::numeric_limits<Uint32>::max())));
  for (Uint32 i = 0; i < size; ++i)
    append(item);
}

template <class T>
void Array<T>::swap(Array<T>& x) {
  std::swap(_rep, x._rep);
}

template <class T>
Uint32 Array<T>::size() const {
  return _rep == nullptr ? 0 : _rep->size;
}

template <class T>
Uint32 Array<T>::getCapacity() const {
  return _rep == nullptr ? 0 : _rep->capacity;
}

template <class T>
const T* Array<T>::getData() const {
  return _rep == nullptr ? nullptr : _rep->items();
}

template <class T>
T& Array<T>::operator[](Uint32 index) {
  if (index >= size()) throw IndexOutOfBoundsException();
  reserveCapacity(size());
  return _rep->items()[index];
}

template <class T>
const T& Array<T>::operator[](Uint32 index) const {
  if (index >= size()) throw IndexOutOfBoundsException();
  return _rep->items()[index];
}

template <class T>
void Array<T>::append(const T& x) {
  insert(size(), &x, 1);
}

template <class T>
void Array<T>::append(const T* x, Uint32 size) {
  insert(this->size(), x, size);
}

template <class T>
void Array<T>::appendArray(const Array<T>& x) {
  const Array<T> held(x);  // x may be this array
  insert(size(), held.getData(), held.size());
}

template <class T>
void Array<T>::prepend(const T& x) {
  insert(0, &x, 1);
}

template <class T>
void Array<T>::prepend(const T* x, Uint32 size) {
  insert(0, x, size);
}

template <class T>
void Array<T>::insert(Uint32 index, const T& x) {
  insert(index, &x, 1);
}

template <class T>
void Array<T>::insert(Uint32 index, const T* x, Uint32 size) {
  if (index > this->size()) throw IndexOutOfBoundsException();
  if (size == 0) return;
  if (_rep != nullptr && !std::less<const T*>()(x, _rep->items()) &&
      std::less<const T*>()(x, _rep->items() + _rep->size)) {
    const Array<T> held(x, size);  // elements of this array, which are about to move
    insert(index, held.getData(), size);
    return;
  }
  const size_t total = size_t{this->size()} + size;
  if (_rep == nullptr || _rep->shared() || _rep->capacity < total) {
    Rep* roomy = Rep::withRoomFor(_rep, Rep::grownCapacity(_rep, total));
    Rep::release(std::exchange(_rep, roomy));
  }
  _rep->openGap(index, size);
  std::uninitialized_copy_n(x, size, _rep->items() + index);
  _rep->size = static_cast<Uint32>(total);
}

template <class T>
void Array<T>::remove(Uint32 index) {
  remove(index, 1);
}

template <class T>
void Array<T>::remove(Uint32 index, Uint32 size) {
  const Uint32 total = this->size();
  if (index > total || size > total - index) throw IndexOutOfBoundsException();
  if (size == 0) return;
  reserveCapacity(total);
  std::destroy_n(_rep->items() + index, size);
  _rep->closeGap(index, size);
  _rep->size = total - size;
}

template class Array<Boolean>;
template class Array<char>;
template class Array<Uint8>;
template class Array<Sint8>;
template class Array<Uint16>;
template class Array<Sint16>;
template class Array<Uint32>;
template class Array<Sint32>;
template class Array<Uint64>;
template class Array<Sint64>;
template class Array<Real32>;
template class Array<Real64>;
template class Array<Char16>;
template class Array<String>;
template class Array<CIMDateTime>;
template class Array<CIMName>;
template class Array<CIMNamespaceName>;
template class Array<CIMObjectPath>;
template class Array<CIMKeyBinding>;
template class Array<CIMValue>;
template class Array<CIMProperty>;
template class Array<CIMQualifier>;
template class Array<CIMQualifierDecl>;
template class Array<CIMParameter>;
template class Array<CIMParamValue>;
template class Array<CIMMethod>;
template class Array<CIMClass>;
template class Array<CIMInstance>;
template class Array<CIMObject>;

}  // namespace vexor_compat
}  // namespace Pegasus
