/* The names under which CMPI providers write threads, mutexes and conditions.
 *
 * Every handle is a pointer that the broker's table CMPIBrokerExtFT made and that only the same
 * table may use: a provider never looks inside. The key of thread-specific data is a number. Time
 * limits are absolute times of the realtime clock; a unit that includes <time.h> sees the members
 * of struct timespec. */
#ifndef CMPIOS_H
#define CMPIOS_H

#ifdef __cplusplus
extern "C" {
#endif

struct timespec;

/* What a thread function returns, and the calling convention of all functions given to the broker
 * (nothing to say on this platform). */
#define CMPI_THREAD_RETURN void*
#define CMPI_THREAD_CDECL

#define CMPI_THREAD_TYPE void*
#define CMPI_THREAD_KEY_TYPE unsigned int
#define CMPI_MUTEX_TYPE void*
#define CMPI_COND_TYPE void*

/* The body of a thread: gets the argument of newThread, its result goes to joinThread. */
typedef CMPI_THREAD_RETURN(CMPI_THREAD_CDECL* CMPIThreadFunc)(void* parm);

/* Run by threadOnce, at most once per control word. */
typedef void (*CMPIThreadOnceFunc)(void);

/* Run as a thread ends, with that thread's value of the key. */
typedef void (*CMPIThreadKeyCleanupFunc)(void* value);

#ifdef __cplusplus
}
#endif

#endif
