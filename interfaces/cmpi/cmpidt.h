/* The data types of the CMPI provider interface, binary compatible with its level 2.0 on x86-64.
 *
 * Conventions, here and in cmpift.h and cmpimacs.h:
 *
 * - Objects. An object (CMPIInstance, CMPIString, ...) is a handle and a pointer to its function
 *   table. An object whose handle is null is as good as no object: CMIsNullObject() tests both.
 * - Ownership. What a provider makes through the broker, or gets from an object, belongs to the
 *   broker's context of the running request and goes away as the request ends: a provider does not
 *   release it. What clone made stays until release. The text of a CMPIString lives as long as the
 *   string. Texts, values and objects that are passed in are copied unless a slot says otherwise.
 * - Results. A function that yields an object or data reports through its last argument, which may
 *   be null when the caller does not ask; a function that yields nothing else returns CMPIStatus.
 *   On failure pointers are null, and the state of CMPIData has a bit other than CMPI_keyValue.
 * - Null slots. A broker may leave out operations: the slot is a null pointer. Each slot that
 *   brokers are known to leave out is marked "May be null" in cmpift.h and is tested before it is
 *   called.
 * - Versions. Nothing here depends on CMPI_VERSION or on a version number seen at run time: brokers
 *   report numbers that say little about their tables. The tables end where level 2.0 ends.
 * - Values. The first member of the union CMPIValue is uint64, but interfaces differ in this, so a
 *   value is always set by the name of its member.
 * - Constness of arguments is that of the published standard; it says nothing about who may be
 *   changed: setters take their object as pointer to const. Tables are const. */
#ifndef CMPIDT_H
#define CMPIDT_H

/* ------------------------------------------------------------------------------------------------
 * Versions. A provider may be compiled with CMPI_VERSION set to 100 or 200: it is the number that
 * the factory macros put into the provider's tables, which no broker acts on from 100 upwards. */

#define CMPIVersion51 51
#define CMPIVersion60 60
#define CMPIVersion70 70
#define CMPIVersion80 80
#define CMPIVersion85 85
#define CMPIVersion86 86
#define CMPIVersion87 87
#define CMPIVersion90 90
#define CMPIVersion100 100
#define CMPIVersion200 200
#define CMPIVersion210 210

#define CMPICurrentVersion CMPIVersion200

#ifndef CMPI_VERSION
#define CMPI_VERSION CMPICurrentVersion
#endif

#if CMPI_VERSION != 100 && CMPI_VERSION != 200
#error "CMPI_VERSION must be 100 or 200: these headers end at CMPI level 2.0"
#endif

/* Switches that providers test to choose between forms of their code. */
#ifndef CMPI_VER_80
#define CMPI_VER_80 1
#endif
#ifndef CMPI_VER_85
#define CMPI_VER_85 1
#endif
#ifndef CMPI_VER_86
#define CMPI_VER_86 1
#endif
#ifndef CMPI_VER_87
#define CMPI_VER_87 1
#endif
#ifndef CMPI_VER_90
#define CMPI_VER_90 1
#endif
#ifndef CMPI_VER_100
#define CMPI_VER_100 1
#endif
#if CMPI_VERSION >= 200 && !defined(CMPI_VER_200)
#define CMPI_VER_200 1
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* ------------------------------------------------------------------------------------------------
 * Numbers of the interface. */

typedef int CMPIVersion;
typedef unsigned int CMPICount;
typedef unsigned int CMPIFlags;
typedef unsigned short CMPIType;
typedef unsigned short CMPIValueState;

/* ------------------------------------------------------------------------------------------------
 * Values of the CIM types. */

typedef unsigned char CMPIBoolean;
typedef unsigned short CMPIChar16;
typedef unsigned char CMPIUint8;
typedef unsigned short CMPIUint16;
typedef unsigned int CMPIUint32;
typedef unsigned long long CMPIUint64;
typedef signed char CMPISint8;
typedef short CMPISint16;
typedef int CMPISint32;
typedef long long CMPISint64;
typedef float CMPIReal32;
typedef double CMPIReal64;

/* Bytes that no table describes: ptr to the first, length in bytes. */
typedef struct CMPIValuePtr {
  void* ptr;
  CMPICount length;
} CMPIValuePtr;

/* ------------------------------------------------------------------------------------------------
 * Objects. The tables are those of cmpift.h. */

typedef struct CMPIBroker CMPIBroker;
typedef struct CMPIInstance CMPIInstance;
typedef struct CMPIObjectPath CMPIObjectPath;
typedef struct CMPIArgs CMPIArgs;
typedef struct CMPIString CMPIString;
typedef struct CMPIArray CMPIArray;
typedef struct CMPIDateTime CMPIDateTime;
typedef struct CMPIEnumeration CMPIEnumeration;
typedef struct CMPISelectExp CMPISelectExp;
typedef struct CMPISelectCond CMPISelectCond;
typedef struct CMPISubCond CMPISubCond;
typedef struct CMPIPredicate CMPIPredicate;
typedef struct CMPIContext CMPIContext;
typedef struct CMPIResult CMPIResult;
typedef struct CMPIError CMPIError;

typedef struct CMPIBrokerFT CMPIBrokerFT;
typedef struct CMPIBrokerEncFT CMPIBrokerEncFT;
typedef struct CMPIBrokerExtFT CMPIBrokerExtFT;
typedef struct CMPIBrokerMemFT CMPIBrokerMemFT;
typedef struct CMPIInstanceFT CMPIInstanceFT;
typedef struct CMPIObjectPathFT CMPIObjectPathFT;
typedef struct CMPIArgsFT CMPIArgsFT;
typedef struct CMPIStringFT CMPIStringFT;
typedef struct CMPIArrayFT CMPIArrayFT;
typedef struct CMPIDateTimeFT CMPIDateTimeFT;
typedef struct CMPIEnumerationFT CMPIEnumerationFT;
typedef struct CMPISelectExpFT CMPISelectExpFT;
typedef struct CMPISelectCondFT CMPISelectCondFT;
typedef struct CMPISubCondFT CMPISubCondFT;
typedef struct CMPIPredicateFT CMPIPredicateFT;
typedef struct CMPIContextFT CMPIContextFT;
typedef struct CMPIResultFT CMPIResultFT;
typedef struct CMPIErrorFT CMPIErrorFT;

typedef struct CMPIInstanceMI CMPIInstanceMI;
typedef struct CMPIAssociationMI CMPIAssociationMI;
typedef struct CMPIMethodMI CMPIMethodMI;
typedef struct CMPIPropertyMI CMPIPropertyMI;
typedef struct CMPIIndicationMI CMPIIndicationMI;

typedef struct CMPIInstanceMIFT CMPIInstanceMIFT;
typedef struct CMPIAssociationMIFT CMPIAssociationMIFT;
typedef struct CMPIMethodMIFT CMPIMethodMIFT;
typedef struct CMPIPropertyMIFT CMPIPropertyMIFT;
typedef struct CMPIIndicationMIFT CMPIIndicationMIFT;

struct CMPIInstance {
  void* hdl;
  const CMPIInstanceFT* ft;
};

struct CMPIObjectPath {
  void* hdl;
  const CMPIObjectPathFT* ft;
};

/* The parameters of a method, going in or coming out. */
struct CMPIArgs {
  void* hdl;
  const CMPIArgsFT* ft;
};

struct CMPIString {
  void* hdl;
  const CMPIStringFT* ft;
};

struct CMPIArray {
  void* hdl;
  const CMPIArrayFT* ft;
};

struct CMPIDateTime {
  void* hdl;
  const CMPIDateTimeFT* ft;
};

struct CMPIEnumeration {
  void* hdl;
  const CMPIEnumerationFT* ft;
};

/* A query, and below its condition in normal form: a CMPISelectCond holds CMPISubConds, which hold
 * CMPIPredicates. */
struct CMPISelectExp {
  void* hdl;
  const CMPISelectExpFT* ft;
};

struct CMPISelectCond {
  void* hdl;
  const CMPISelectCondFT* ft;
};

struct CMPISubCond {
  void* hdl;
  const CMPISubCondFT* ft;
};

struct CMPIPredicate {
  void* hdl;
  const CMPIPredicateFT* ft;
};

/* What the broker says about the request: named entries, see CMPIInvocationFlags and below. */
struct CMPIContext {
  void* hdl;
  const CMPIContextFT* ft;
};

/* Where a provider puts what it returns. */
struct CMPIResult {
  void* hdl;
  const CMPIResultFT* ft;
};

struct CMPIError {
  void* hdl;
  const CMPIErrorFT* ft;
};

/* The provider's own objects; hdl is the provider's to use. */
struct CMPIInstanceMI {
  void* hdl;
  const CMPIInstanceMIFT* ft;
};

struct CMPIAssociationMI {
  void* hdl;
  const CMPIAssociationMIFT* ft;
};

struct CMPIMethodMI {
  void* hdl;
  const CMPIMethodMIFT* ft;
};

struct CMPIPropertyMI {
  void* hdl;
  const CMPIPropertyMIFT* ft;
};

struct CMPIIndicationMI {
  void* hdl;
  const CMPIIndicationMIFT* ft;
};

/* The broker: operations (bft), object factories (eft), threads (xft) and memory (mft). */
struct CMPIBroker {
  void* hdl;
  const CMPIBrokerFT* bft;
  const CMPIBrokerEncFT* eft;
  const CMPIBrokerExtFT* xft;
  const CMPIBrokerMemFT* mft; /* May be null. */
};

/* What brokers hand out without a table: a mark of the memory in use, and an open message file. */
typedef struct CMPIGcStat CMPIGcStat;
typedef void* CMPIMsgFileHandle;

/* ------------------------------------------------------------------------------------------------
 * A value of any type. Which member counts is said by the CMPIType that goes with it: its number
 * types use the member of the same name, CMPI_instance inst, CMPI_ref ref, CMPI_args args,
 * CMPI_filter filter, CMPI_enumeration Enum, CMPI_string string, CMPI_chars chars, CMPI_dateTime
 * dateTime, CMPI_ptr and CMPI_charsptr dataPtr, and every array type array.
 *
 * Where a function takes a pointer to a value together with the type CMPI_chars, the pointer is the
 * text itself: (const CMPIValue*)"text". The value of a CMPI_chars that is handed back is in chars.
 */
typedef union CMPIValue {
  CMPIUint64 uint64;
  CMPIUint32 uint32;
  CMPIUint16 uint16;
  CMPIUint8 uint8;
  CMPISint64 sint64;
  CMPISint32 sint32;
  CMPISint16 sint16;
  CMPISint8 sint8;
  CMPIReal64 real64;
  CMPIReal32 real32;
  CMPIBoolean boolean;
  CMPIChar16 char16;

  CMPIInstance* inst;
  CMPIObjectPath* ref;
  CMPIArgs* args;
  CMPISelectExp* filter;
  CMPIEnumeration* Enum;
  CMPIArray* array;
  CMPIString* string;
  char* chars;
  CMPIDateTime* dateTime;
  CMPIValuePtr dataPtr;

  /* Old names, for old providers only. */
  CMPISint8 Byte;
  CMPISint16 Short;
  CMPISint32 Int;
  CMPISint64 Long;
  CMPIReal32 Float;
  CMPIReal64 Double;
} CMPIValue;

/* A value with its type and state. */
typedef struct CMPIData {
  CMPIType type;
  CMPIValueState state;
  CMPIValue value;
} CMPIData;

/* Gives the value of the named property to a query that is evaluated without an instance; parm is
 * the one that came with the accessor. */
typedef CMPIData CMPIAccessor(const char* name, void* parm);

/* ------------------------------------------------------------------------------------------------
 * CMPIType codes. */

/* Groups: a mask of the codes that belong together. */
#define CMPI_SIMPLE 0x0002
#define CMPI_REAL 0x0008
#define CMPI_UINT 0x0080
#define CMPI_SINT 0x00c0
#define CMPI_INTEGER 0x00c0
#define CMPI_ENC 0x1000
#define CMPI_ARRAY 0x2000

#define CMPI_null 0x0000
#define CMPI_boolean 0x0002
#define CMPI_char16 0x0003
#define CMPI_real32 0x0008
#define CMPI_real64 0x000c
#define CMPI_uint8 0x0080
#define CMPI_uint16 0x0090
#define CMPI_uint32 0x00a0
#define CMPI_uint64 0x00b0
#define CMPI_sint8 0x00c0
#define CMPI_sint16 0x00d0
#define CMPI_sint32 0x00e0
#define CMPI_sint64 0x00f0
#define CMPI_instance 0x1000
#define CMPI_ref 0x1100
#define CMPI_args 0x1200
#define CMPI_class 0x1300
#define CMPI_filter 0x1400
#define CMPI_enumeration 0x1500
#define CMPI_string 0x1600
#define CMPI_chars 0x1700
#define CMPI_dateTime 0x1800
#define CMPI_ptr 0x1900
#define CMPI_charsptr 0x1a00

/* Arrays. There are none of args, classes, filters, enumerations and plain pointers. */
#define CMPI_booleanA (CMPI_ARRAY | CMPI_boolean)
#define CMPI_char16A (CMPI_ARRAY | CMPI_char16)
#define CMPI_real32A (CMPI_ARRAY | CMPI_real32)
#define CMPI_real64A (CMPI_ARRAY | CMPI_real64)
#define CMPI_uint8A (CMPI_ARRAY | CMPI_uint8)
#define CMPI_uint16A (CMPI_ARRAY | CMPI_uint16)
#define CMPI_uint32A (CMPI_ARRAY | CMPI_uint32)
#define CMPI_uint64A (CMPI_ARRAY | CMPI_uint64)
#define CMPI_sint8A (CMPI_ARRAY | CMPI_sint8)
#define CMPI_sint16A (CMPI_ARRAY | CMPI_sint16)
#define CMPI_sint32A (CMPI_ARRAY | CMPI_sint32)
#define CMPI_sint64A (CMPI_ARRAY | CMPI_sint64)
#define CMPI_instanceA (CMPI_ARRAY | CMPI_instance)
#define CMPI_refA (CMPI_ARRAY | CMPI_ref)
#define CMPI_stringA (CMPI_ARRAY | CMPI_string)
#define CMPI_charsA (CMPI_ARRAY | CMPI_chars)
#define CMPI_dateTimeA (CMPI_ARRAY | CMPI_dateTime)
#define CMPI_charsptrA (CMPI_ARRAY | CMPI_charsptr)

/* Other names. */
#define CMPI_Byte CMPI_sint8
#define CMPI_Short CMPI_sint16
#define CMPI_Int CMPI_sint32
#define CMPI_Long CMPI_sint64
#define CMPI_Float CMPI_real32
#define CMPI_Double CMPI_real64

/* Types of keys, and of the literals in queries. */
#define CMPI_keyInteger CMPI_sint64
#define CMPI_keyString CMPI_string
#define CMPI_keyBoolean CMPI_boolean
#define CMPI_keyRef CMPI_ref
#define CMPI_charString CMPI_string
#define CMPI_integerString (CMPI_string | CMPI_sint64)
#define CMPI_realString (CMPI_string | CMPI_real64)
#define CMPI_numericString (CMPI_string | CMPI_sint64 | CMPI_real64)
#define CMPI_booleanString (CMPI_string | CMPI_boolean)
#define CMPI_dateTimeString (CMPI_string | CMPI_dateTime)
#define CMPI_classNameString (CMPI_string | 0x0100)
#define CMPI_nameString (CMPI_string | 0x0800)

/* ------------------------------------------------------------------------------------------------
 * CMPIValueState, a set of bits: any bit other than CMPI_keyValue means that there is no value.
 * Brokers differ in which of them they set. */

#define CMPI_goodValue 0x0000
#define CMPI_nullValue 0x0100
#define CMPI_keyValue 0x0200
#define CMPI_notFound 0x0400
#define CMPI_badValue 0x8000

/* ------------------------------------------------------------------------------------------------
 * Status of an operation: a code, and optionally a text for the person who asked. */

/* 1 to 29 are the status codes of CIM operations, which reach the client. */
typedef enum CMPIrc {
  CMPI_RC_OK = 0,
  CMPI_RC_ERR_FAILED = 1,
  CMPI_RC_ERR_ACCESS_DENIED = 2,
  CMPI_RC_ERR_INVALID_NAMESPACE = 3,
  CMPI_RC_ERR_INVALID_PARAMETER = 4,
  CMPI_RC_ERR_INVALID_CLASS = 5,
  CMPI_RC_ERR_NOT_FOUND = 6,
  CMPI_RC_ERR_NOT_SUPPORTED = 7,
  CMPI_RC_ERR_CLASS_HAS_CHILDREN = 8,
  CMPI_RC_ERR_CLASS_HAS_INSTANCES = 9,
  CMPI_RC_ERR_INVALID_SUPERCLASS = 10,
  CMPI_RC_ERR_ALREADY_EXISTS = 11,
  CMPI_RC_ERR_NO_SUCH_PROPERTY = 12,
  CMPI_RC_ERR_TYPE_MISMATCH = 13,
  CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED = 14,
  CMPI_RC_ERR_INVALID_QUERY = 15,
  CMPI_RC_ERR_METHOD_NOT_AVAILABLE = 16,
  CMPI_RC_ERR_METHOD_NOT_FOUND = 17,
  CMPI_RC_NO_MORE_ELEMENTS = 18,
  CMPI_RC_ERR_SERVER_LIMITS_EXCEEDED = 27,
  CMPI_RC_ERR_QUERY_FEATURE_NOT_SUPPORTED = 29,
  /* Answers of a provider's cleanup that keep its library loaded: this time, and for good. */
  CMPI_RC_DO_NOT_UNLOAD = 50,
  CMPI_RC_NEVER_UNLOAD = 51,
  /* Misuse of the interface. */
  CMPI_RC_ERR_INVALID_HANDLE = 60,
  CMPI_RC_ERR_INVALID_DATA_TYPE = 61,
  CMPI_RC_ERR_NOT_IN_CODEPAGE = 62,
  CMPI_RC_ERROR_SYSTEM = 100,
  CMPI_RC_ERROR = 200
} CMPIrc;

/* msg is null or the text that goes with rc. */
typedef struct CMPIStatus {
  CMPIrc rc;
  CMPIString* msg;
} CMPIStatus;

/* ------------------------------------------------------------------------------------------------
 * Names of context entries. */

#define CMPIInvocationFlags "CMPIInvocationFlags" /* uint32, CMPI_FLAG_... */
#define CMPIInitNameSpace "CMPIInitNameSpace"     /* string, the provider's first namespace */
#define CMPIPrincipal "CMPIPrincipal"             /* string, who asks */
#define CMPIRole "CMPIRole"                       /* string, as whom */
#define CMPIAcceptLanguage "CMPIAcceptLanguage"   /* string, languages that the client reads */
#define CMPIContentLanguage "CMPIContentLanguage" /* string, language of the request's texts */

#define CMPI_FLAG_LocalOnly 1
#define CMPI_FLAG_DeepInheritance 2
#define CMPI_FLAG_IncludeQualifiers 4
#define CMPI_FLAG_IncludeClassOrigin 8

/* ------------------------------------------------------------------------------------------------
 * What a broker can do: CMPIBrokerFT.brokerCapabilities. A capability includes those it builds on,
 * so the test is (capabilities & mask) == mask. Bit 256 has two meanings: brokers that know the
 * names CMPI_MB_Supports_... mean property providers by it, others the functions of
 * CMPIBrokerExtFT. */

#define CMPI_MB_BasicRead 0x00000001
#define CMPI_MB_Class_0 0x00000001
#define CMPI_MB_BasicWrite 0x00000003
#define CMPI_MB_Class_1 0x00000003
#define CMPI_MB_InstanceManipulation 0x00000007
#define CMPI_MB_Class_2 0x00000007
#define CMPI_MB_AssociationTraversal 0x00000009
#define CMPI_MB_QueryExecution 0x00000011
#define CMPI_MB_QueryNormalization 0x00000031
#define CMPI_MB_BasicQualifierSupport 0x00000047
#define CMPI_MB_Indications 0x00000081
#define CMPI_MB_OSEncapsulationSupport 0x00000100
#define CMPI_MB_Supports_MemEnhancements 0x00004000
#define CMPI_MB_Supports_Extended_Error 0x00008000
#define CMPI_MB_Logging 0x00010000
#define CMPI_MB_Tracing 0x00020000
#define CMPI_MB_PropertyFiltering 0x00040001
#define CMPI_MB_CodepageConversion 0x00080000

#define CMPI_MB_Supports_PropertyMI 0x00000100
#define CMPI_MB_Supports_IndicationMI 0x00000200
#define CMPI_MB_Supports_IndicationPolling 0x00000400
#define CMPI_MB_Supports_QueryNormalization 0x00000800
#define CMPI_MB_Supports_Qualifier 0x00001000
#define CMPI_MB_Supports_Schema 0x00003000

/* ------------------------------------------------------------------------------------------------
 * Logging and tracing. */

typedef enum CMPISeverity {
  CMPI_SEV_ERROR = 1,
  CMPI_SEV_INFO = 2,
  CMPI_SEV_WARNING = 3
} CMPISeverity;

typedef enum CMPILevel {
  CMPI_LEV_INFO = 1,
  CMPI_LEV_WARNING = 2,
  CMPI_LEV_VERBOSE = 3,
  CMPI_DEV_DEBUG = 4 /* The published name breaks the pattern. */
} CMPILevel;

/* ------------------------------------------------------------------------------------------------
 * Conditions of queries. */

/* The form of a CMPISelectCond: disjunction of conjunctions, or conjunction of disjunctions. */
#define CMPI_COND_DOC 0
#define CMPI_COND_COD 1

typedef enum CMPIPredOp {
  CMPI_PredOp_Equals = 1,
  CMPI_PredOp_NotEquals = 2,
  CMPI_PredOp_LessThan = 3,
  CMPI_PredOp_GreaterThanOrEquals = 4,
  CMPI_PredOp_GreaterThan = 5,
  CMPI_PredOp_LessThanOrEquals = 6,
  CMPI_PredOp_Isa = 7,
  CMPI_PredOp_NotIsa = 8,
  CMPI_PredOp_Like = 9,
  CMPI_PredOp_NotLike = 10,
  CMPI_PredOp_Not_Null = 11,
  CMPI_PredOp_Null = 12,
  CMPI_PredOp_And = 13,
  CMPI_PredOp_Or = 14
} CMPIPredOp;

/* ------------------------------------------------------------------------------------------------
 * CMPIError: the properties of the CIM class CIM_Error. */

typedef enum CMPIErrorType {
  UnknownErrorType = 0,
  OtherErrorType = 1,
  CommunicationsError = 2,
  QualityOfServiceError = 3,
  SoftwareError = 4,
  HardwareError = 5,
  EnvironmentalError = 6,
  SecurityError = 7,
  Oversubscription_Error = 8,
  OversubscriptionError = Oversubscription_Error,
  UnavailableResourceError = 9,
  UnsupportedOperationError = 10
} CMPIErrorType;

typedef enum CMPIErrorSeverity {
  ErrorSevUnknown = 0,
  ErrorSevLow = 2,
  ErrorSevMedium = 3,
  ErrorSevHigh = 4,
  ErrorSevFatal = 5
} CMPIErrorSeverity;

typedef enum CMPIErrorSrcFormat {
  UnknownErrorSrcFormat = 0,
  OtherErrorSrcFormat = 1,
  CIMObjectHandle = 2
} CMPIErrorSrcFormat;

/* The value map of CIM_Error.ProbableCause. */
typedef enum CMPIErrorProbableCause {
  ErrorProbableCauseUnknown = 0,
  ErrorProbableCauseOther = 1,
  Adapter_Card_Error = 2,
  Application_Subsystem_Failure = 3,
  Bandwidth_Reduced = 4,
  Connection_Establishment_Error = 5,
  Communications_Protocol_Error = 6,
  Communications_Subsystem_Failure = 7,
  Configuration_Customization_Error = 8,
  Congestion = 9,
  Corrupt_Data = 10,
  CPU_Cycles_Limit_Exceeded = 11,
  Dataset_Modem_Error = 12,
  Degraded_Signal = 13,
  DTE_DCE_Interface_Error = 14,
  Enclosure_Door_Open = 15,
  Equipment_Malfunction = 16,
  Excessive_Vibration = 17,
  File_Format_Error = 18,
  Fire_Detected = 19,
  Flood_Detected = 20,
  Framing_Error = 21,
  HVAC_Problem = 22,
  Humidity_Unacceptable = 23,
  IO_Device_Error = 24,
  Input_Device_Error = 25,
  LAN_Error = 26,
  Non_Toxic_Leak_Detected = 27,
  Local_Node_Transmission_Error = 28,
  Loss_of_Frame = 29,
  Loss_of_Signal = 30,
  Material_Supply_Exhausted = 31,
  Multiplexer_Problem = 32,
  Out_of_Memory = 33,
  Output_Device_Error = 34,
  Performance_Degraded = 35,
  Power_Problem = 36,
  Pressure_Unacceptable = 37,
  Processor_Problem_Internal_Machine_Error = 38,
  Pump_Failure = 39,
  Queue_Size_Exceeded = 40,
  Receive_Failure = 41,
  Receiver_Failure = 42,
  Remote_Node_Transmission_Error = 43,
  Resource_at_or_Nearing_Capacity = 44,
  Response_Time_Excessive = 45,
  Retransmission_Rate_Excessive = 46,
  Software_Error = 47,
  Software_Program_Abnormally_Terminated = 48,
  Software_Program_Error_Incorrect_Results = 49,
  Storage_Capacity_Problem = 50,
  Temperature_Unacceptable = 51,
  Threshold_Crossed = 52,
  Timing_Problem = 53,
  Toxic_Leak_Detected = 54,
  Transmit_Failure = 55,
  Transmitter_Failure = 56,
  Underlying_Resource_Unavailable = 57,
  Version_Mismatch = 58,
  Previous_Alert_Cleared = 59,
  Login_Attempts_Failed = 60,
  Software_Virus_Detected = 61,
  Hardware_Security_Breached = 62,
  Denial_of_Service_Detected = 63,
  Security_Credential_Mismatch = 64,
  Unauthorized_Access = 65,
  Alarm_Received = 66,
  Loss_of_Pointer = 67,
  Payload_Mismatch = 68,
  Transmission_Error = 69,
  Excessive_Error_Rate = 70,
  Trace_Problem = 71,
  Element_Unavailable = 72,
  Element_Missing = 73,
  Loss_of_Multi_Frame = 74,
  Broadcast_Channel_Failure = 75,
  Invalid_Message_Received = 76,
  Routing_Failure = 77,
  Backplane_Failure = 78,
  Identifier_Duplication = 79,
  Protection_Path_Failure = 80,
  Sync_Loss_or_Mismatch = 81,
  Terminal_Problem = 82,
  Real_Time_Clock_Failure = 83,
  Antenna_Failure = 84,
  Battery_Charging_Failure = 85,
  Disk_Failure = 86,
  Frequency_Hopping_Failure = 87,
  Loss_of_Redundancy = 88,
  Power_Supply_Failure = 89,
  Signal_Quality_Problem = 90,
  Battery_Discharging = 91,
  Battery_Failure = 92,
  Commercial_Power_Problem = 93,
  Fan_Failure = 94,
  Engine_Failure = 95,
  Sensor_Failure = 96,
  Fuse_Failure = 97,
  Generator_Failure = 98,
  Low_Battery = 99,
  Low_Fuel = 100,
  Low_Water = 101,
  Explosive_Gas = 102,
  High_Winds = 103,
  Ice_Buildup = 104,
  Smoke = 105,
  Memory_Mismatch = 106,
  Out_of_CPU_Cycles = 107,
  Software_Environment_Problem = 108,
  Software_Download_Failure = 109,
  Element_Reinitialized = 110,
  Timeout = 111,
  Logging_Problems = 112,
  Leak_Detected = 113,
  Leak_Detected_113 = Leak_Detected,
  Protection_Mechanism_Failure = 114,
  Protecting_Resource_Failure = 115,
  Database_Inconsistency = 116,
  Authentication_Failure = 117,
  Breach_of_Confidentiality = 118,
  Cable_Tamper = 119,
  Delayed_Information = 120,
  Duplicate_Information = 121,
  Information_Missing = 122,
  Information_Modification = 123,
  Information_Out_of_Sequence = 124,
  Key_Expired = 125,
  Non_Repudiation_Failure = 126,
  Out_of_Hours_Activity = 127,
  Out_of_Service = 128,
  Procedural_Error = 129,
  Unexpected_Information = 130
} CMPIErrorProbableCause;

#ifdef __cplusplus
}
#endif

#endif
