/* Visibility of the library's public names: everything else is hidden. */
#ifndef CIM_UTILS_EXPORT_H
#define CIM_UTILS_EXPORT_H

#if defined(__GNUC__)
#define CIM_UTILS_EXPORT __attribute__((visibility("default")))
#else
#define CIM_UTILS_EXPORT
#endif

#endif /* CIM_UTILS_EXPORT_H */
