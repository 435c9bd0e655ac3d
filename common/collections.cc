#include <cim_utils/collections.h>

#include <cstdlib>
#include <cstring>

namespace {

constexpr uint8_t kFreeValues = 1;  // exactly: any other flag keeps the values

char* heap_copy(const char* text) {
  const std::size_t size = std::strlen(text) + 1;
  char* const copy = static_cast<char*>(std::malloc(size));
  if (copy != nullptr) std::memcpy(copy, text, size);
  return copy;
}

}  // namespace

// ---- String tables

GHashTable* cim_g_hash_table_new(void) {
  return g_hash_table_new(g_str_hash, g_str_equal);
}

int cim_g_hash_table_insert(GHashTable* table, const char* key, gpointer value) {
  if (table == nullptr || key == nullptr) return -1;
  gpointer const old_value = g_hash_table_lookup(table, key);
  if (old_value != nullptr) {
    // GLib keeps its key and stores the value; the caller's key is only compared.
    g_hash_table_insert(table, const_cast<char*>(key), value);
    if (old_value != value) std::free(old_value);
    return 0;
  }
  char* const own_key = heap_copy(key);
  if (own_key == nullptr) return -1;
  // An entry whose value is null looks like none, but it has a key already.
  if (g_hash_table_insert(table, own_key, value) == FALSE) std::free(own_key);
  return 0;
}

void cim_g_hash_table_destroy(GHashTable* table, uint8_t free_values) {
  if (table == nullptr) return;
  g_hash_table_foreach(table, cim_hashtable_key_value_free_func, &free_values);
  g_hash_table_destroy(table);
}

void cim_hashtable_key_value_free_func(gpointer key, gpointer value, gpointer flag) {
  std::free(key);
  if (flag != nullptr && *static_cast<const uint8_t*>(flag) == kFreeValues) std::free(value);
}

// ---- Lists

GSList* cim_g_slist_new(void) {
  return nullptr;
}
GSList* cim_g_slist_alloc(void) {
  return nullptr;
}

GSList* cim_g_slist_append(GSList* list, gpointer data) {
  return g_slist_append(list, data);
}
GSList* cim_g_slist_prepend(GSList* list, gpointer data) {
  return g_slist_prepend(list, data);
}

GSList* cim_g_slist_append_str(GSList* list, const char* text) {
  char* const copy = text == nullptr ? nullptr : heap_copy(text);
  return copy == nullptr ? list : g_slist_append(list, copy);
}

guint cim_g_slist_length(GSList* list) {
  return g_slist_length(list);
}

gpointer cim_g_slist_nth_data(GSList* list, guint n) {
  return g_slist_nth_data(list, n);
}

void cim_g_slist_destroy(GSList* list, gpointer extra) {
  g_slist_foreach(list, cim_slist_value_free_func, extra);
  g_slist_free(list);
}

void cim_slist_value_free_func(gpointer data, gpointer) {
  std::free(data);
}
