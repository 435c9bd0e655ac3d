/* GLib lists and string tables that own what is put into them.
 *
 * Conventions of this header:
 * - C99, C linkage. A list is its head pointer; the empty list is null. A table is a GHashTable
 *   that hashes and compares its keys as texts.
 * - Data and values are blocks of the C heap (malloc), handed over to the collection and released
 *   with free when it is destroyed through these functions. Texts passed in stay the caller's.
 * - A null collection is accepted everywhere: an empty list, or a table to which nothing happens.
 * - The callbacks are exported for programs that walk a collection themselves.
 */
#ifndef CIM_UTILS_COLLECTIONS_H
#define CIM_UTILS_COLLECTIONS_H

#include <glib.h>
#include <stdint.h>

#include <cim_utils/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* ---- String tables ------------------------------------------------------------------------ */

/* A new, empty table. Released with cim_g_hash_table_destroy. */
CIM_UTILS_EXPORT GHashTable* cim_g_hash_table_new(void);

/* Stores the value under the key. Under a key that the table holds already the new value replaces
 * the old one, which is freed; a new key is copied. Result: 0; -1 when the key could not be copied
 * or the table or the key is null: the table is unchanged and the value still the caller's. */
CIM_UTILS_EXPORT int cim_g_hash_table_insert(GHashTable* table, const char* key, gpointer value);

/* Frees every key, every value when free_values is exactly 1, and the table. With any other flag
 * the values stay with the caller, who must hold other references to them. */
CIM_UTILS_EXPORT void cim_g_hash_table_destroy(GHashTable* table, uint8_t free_values);

/* Frees a key, and its value when the uint8_t that flag points to is exactly 1. */
CIM_UTILS_EXPORT void cim_hashtable_key_value_free_func(gpointer key, gpointer value,
                                                        gpointer flag);

/* ---- Lists -------------------------------------------------------------------------------- */

/* The empty list, null. */
CIM_UTILS_EXPORT GSList* cim_g_slist_new(void);
CIM_UTILS_EXPORT GSList* cim_g_slist_alloc(void);

/* The new head after data, a heap block that is the list's from now on, was added at the end or in
 * front. Adding at the end walks the whole list. */
CIM_UTILS_EXPORT GSList* cim_g_slist_append(GSList* list, gpointer data);
CIM_UTILS_EXPORT GSList* cim_g_slist_prepend(GSList* list, gpointer data);

/* The new head after a heap copy of the text was added at the end. A text that is null or cannot
 * be copied leaves the list unchanged. */
CIM_UTILS_EXPORT GSList* cim_g_slist_append_str(GSList* list, const char* text);

/* The number of elements. */
CIM_UTILS_EXPORT guint cim_g_slist_length(GSList* list);

/* The data of element n, counted from 0, which stays the list's; null past the end. */
CIM_UTILS_EXPORT gpointer cim_g_slist_nth_data(GSList* list, guint n);

/* Frees the data of every element, then the list. The second argument is ignored. Not for lists
 * whose data are not heap blocks of their own. */
CIM_UTILS_EXPORT void cim_g_slist_destroy(GSList* list, gpointer extra);

/* Frees data. The second argument is ignored. */
CIM_UTILS_EXPORT void cim_slist_value_free_func(gpointer data, gpointer user);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_COLLECTIONS_H */
