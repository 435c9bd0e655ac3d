/* What every CMPI-face builder shares: paths with a host, associations of two given references, and
 * the texts of module states.
 *
 * Conventions of the CMPI face:
 * - C linkage. Class name first, then namespace, then the records or references, then flags, the
 *   request's property list, and the broker last, except where a prototype shows otherwise.
 * - The objects returned belong to the broker's request context; the library never releases them.
 * - X_fill_reference gives a path with host, namespace, class name and keys. X_build_instance gives
 *   an instance, or null on failure; its keys are in its properties, its path has none.
 * - The host of every path is the host name (getCSName).
 * - Services are asked on the queue mts_q. A service that does not answer leaves out what depends
 *   on it, or gives the fallback text that the class defines.
 * - Null records and null references make no object or set nothing; the broker must not be null.
 */
#ifndef CIM_UTILS_CMPI_BUILDERS_H
#define CIM_UTILS_CMPI_BUILDERS_H

#include <cmpidt.h>
#include <cmpift.h>

#include <cim_utils/export.h>

#ifdef __cplusplus
extern "C" {
#endif

/* A path with its host and no keys. Result: what the broker gave. */
CIM_UTILS_EXPORT CMPIObjectPath* makePath(const CMPIBroker* broker, const char* nameSpace,
                                          const char* className, CMPIStatus* rc);

/* A path of an association whose two keys, firstRole and secondRole, are the given references. */
CIM_UTILS_EXPORT CMPIObjectPath* association_class_fill_reference_path(
    const char* className, const char* nameSpace, const CMPIObjectPath* firstRef,
    const CMPIObjectPath* secondRef, const char* firstRole, const char* secondRole,
    const CMPIBroker* broker);

/* An instance of an association with the given references as its two properties. */
CIM_UTILS_EXPORT CMPIInstance* association_class_build_instance_path(
    const char* className, const char* nameSpace, const CMPIObjectPath* firstRef,
    const CMPIObjectPath* secondRef, const char* firstRole, const char* secondRole,
    const CMPIBroker* broker);

/* Setting data of an element: "ManagedElement", "SettingData". The property list is part of the
 * signature and ignored. */
CIM_UTILS_EXPORT CMPIInstance* esd_build_instance(const char* className, const char* nameSpace,
                                                  const CMPIObjectPath* managedElementRef,
                                                  const CMPIObjectPath* settingDataRef,
                                                  const char** propertyList,
                                                  const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* esd_fill_reference(const char* className, const char* nameSpace,
                                                    const CMPIObjectPath* managedElementRef,
                                                    const CMPIObjectPath* settingDataRef,
                                                    const CMPIBroker* broker);

/* A service access point available for an element: "ManagedElement", "AvailableSAP". */
CIM_UTILS_EXPORT CMPIInstance* sap_afe_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* managedElementRef,
                                                      const CMPIObjectPath* availableSapRef,
                                                      const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* sap_afe_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* managedElementRef,
                                                        const CMPIObjectPath* availableSapRef,
                                                        const CMPIBroker* broker);

/* Capabilities of an element: "ManagedElement", "Capabilities". */
CIM_UTILS_EXPORT CMPIInstance* ele_cap_build_instance(const char* className, const char* nameSpace,
                                                      const CMPIObjectPath* managedElementRef,
                                                      const CMPIObjectPath* capabilitiesRef,
                                                      const CMPIBroker* broker);
CIM_UTILS_EXPORT CMPIObjectPath* ele_cap_fill_reference(const char* className,
                                                        const char* nameSpace,
                                                        const CMPIObjectPath* managedElementRef,
                                                        const CMPIObjectPath* capabilitiesRef,
                                                        const CMPIBroker* broker);

/* Writes the text of a module state to buffer, at least 18 bytes that the caller has filled with
 * zeros: only the characters of the text are written, never a terminator, deliberately. Some texts
 * are cut short; all stand as they are. */
CIM_UTILS_EXPORT void set_operational_status(int code, char* buffer);

#ifdef __cplusplus
}
#endif

#endif /* CIM_UTILS_CMPI_BUILDERS_H */
