/* Binds the response queue and prints the switch's VSANs. */
#include <cim_utils/session.h>
#include <cim_utils/vsan.h>
#include <stdio.h>
#include <stdlib.h>

int main(void) {
  int32_t q = -1;
  if (init_mts(&q) != 0) {
    fprintf(stderr, "print_vsans: no response queue\n");
    return 1;
  }
  int32_t count = 0;
  vsanNewEntry_t* vsans = NULL;
  if (vsan_cim_get_all_vsanEntry(q, &count, &vsans) != 0) {
    fprintf(stderr, "print_vsans: the VSAN manager does not answer\n");
    return 1;
  }
  for (int32_t i = 0; i < count; ++i)
    printf("%u %s %s\n", (unsigned)vsans[i].vsan_index, vsans[i].name,
           vsans[i].oper_state == 1 ? "up" : "down");
  free(vsans);
  deinit_mts(&q);
  return 0;
}
