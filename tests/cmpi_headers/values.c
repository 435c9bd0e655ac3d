/* Numbers of the CMPI interface, checked as C. */
#include <cmpidt.h>

/* BaseTypes */
_Static_assert(CMPI_null == 0, "CMPI_null");
_Static_assert(CMPI_boolean == 2, "CMPI_boolean");
_Static_assert(CMPI_char16 == 3, "CMPI_char16");
_Static_assert(CMPI_real32 == 8, "CMPI_real32");
_Static_assert(CMPI_real64 == 12, "CMPI_real64");
_Static_assert(CMPI_uint8 == 0x80, "CMPI_uint8");
_Static_assert(CMPI_uint16 == 0x90, "CMPI_uint16");
_Static_assert(CMPI_uint32 == 0xa0, "CMPI_uint32");
_Static_assert(CMPI_uint64 == 0xb0, "CMPI_uint64");
_Static_assert(CMPI_sint8 == 0xc0, "CMPI_sint8");
_Static_assert(CMPI_sint16 == 0xd0, "CMPI_sint16");
_Static_assert(CMPI_sint32 == 0xe0, "CMPI_sint32");
_Static_assert(CMPI_sint64 == 0xf0, "CMPI_sint64");
_Static_assert(CMPI_instance == 0x1000, "CMPI_instance");
_Static_assert(CMPI_ref == 0x1100, "CMPI_ref");
_Static_assert(CMPI_args == 0x1200, "CMPI_args");
_Static_assert(CMPI_class == 0x1300, "CMPI_class");
_Static_assert(CMPI_filter == 0x1400, "CMPI_filter");
_Static_assert(CMPI_enumeration == 0x1500, "CMPI_enumeration");
_Static_assert(CMPI_string == 0x1600, "CMPI_string");
_Static_assert(CMPI_chars == 0x1700, "CMPI_chars");
_Static_assert(CMPI_dateTime == 0x1800, "CMPI_dateTime");
_Static_assert(CMPI_ptr == 0x1900, "CMPI_ptr");
_Static_assert(CMPI_charsptr == 0x1a00, "CMPI_charsptr");

/* GroupMasks */
_Static_assert(CMPI_SIMPLE == 2, "CMPI_SIMPLE");
_Static_assert(CMPI_REAL == 8, "CMPI_REAL");
_Static_assert(CMPI_UINT == 0x80, "CMPI_UINT");
_Static_assert(CMPI_SINT == 0xc0, "CMPI_SINT");
_Static_assert(CMPI_INTEGER == 0xc0, "CMPI_INTEGER");
_Static_assert(CMPI_ENC == 0x1000, "CMPI_ENC");
_Static_assert(CMPI_ARRAY == 0x2000, "CMPI_ARRAY");

/* ArrayTypes */
_Static_assert(CMPI_booleanA == 0x2002, "CMPI_booleanA");
_Static_assert(CMPI_char16A == 0x2003, "CMPI_char16A");
_Static_assert(CMPI_real32A == 0x2008, "CMPI_real32A");
_Static_assert(CMPI_real64A == 0x200c, "CMPI_real64A");
_Static_assert(CMPI_uint8A == 0x2080, "CMPI_uint8A");
_Static_assert(CMPI_uint16A == 0x2090, "CMPI_uint16A");
_Static_assert(CMPI_uint32A == 0x20a0, "CMPI_uint32A");
_Static_assert(CMPI_uint64A == 0x20b0, "CMPI_uint64A");
_Static_assert(CMPI_sint8A == 0x20c0, "CMPI_sint8A");
_Static_assert(CMPI_sint16A == 0x20d0, "CMPI_sint16A");
_Static_assert(CMPI_sint32A == 0x20e0, "CMPI_sint32A");
_Static_assert(CMPI_sint64A == 0x20f0, "CMPI_sint64A");
_Static_assert(CMPI_instanceA == 0x3000, "CMPI_instanceA");
_Static_assert(CMPI_refA == 0x3100, "CMPI_refA");
_Static_assert(CMPI_stringA == 0x3600, "CMPI_stringA");
_Static_assert(CMPI_charsA == 0x3700, "CMPI_charsA");
_Static_assert(CMPI_dateTimeA == 0x3800, "CMPI_dateTimeA");
_Static_assert(CMPI_charsptrA == 0x3a00, "CMPI_charsptrA");

/* Aliases */
_Static_assert(CMPI_Byte == 0xc0, "CMPI_Byte");
_Static_assert(CMPI_Short == 0xd0, "CMPI_Short");
_Static_assert(CMPI_Int == 0xe0, "CMPI_Int");
_Static_assert(CMPI_Long == 0xf0, "CMPI_Long");
_Static_assert(CMPI_Float == 8, "CMPI_Float");
_Static_assert(CMPI_Double == 12, "CMPI_Double");
_Static_assert(CMPI_keyInteger == 0xf0, "CMPI_keyInteger");
_Static_assert(CMPI_keyString == 0x1600, "CMPI_keyString");
_Static_assert(CMPI_keyBoolean == 2, "CMPI_keyBoolean");
_Static_assert(CMPI_keyRef == 0x1100, "CMPI_keyRef");
_Static_assert(CMPI_charString == 0x1600, "CMPI_charString");
_Static_assert(CMPI_integerString == 0x16f0, "CMPI_integerString");
_Static_assert(CMPI_realString == 0x160c, "CMPI_realString");
_Static_assert(CMPI_numericString == 0x16fc, "CMPI_numericString");
_Static_assert(CMPI_booleanString == 0x1602, "CMPI_booleanString");
_Static_assert(CMPI_dateTimeString == 0x1e00, "CMPI_dateTimeString");
_Static_assert(CMPI_classNameString == 0x1700, "CMPI_classNameString");
_Static_assert(CMPI_nameString == 0x1e00, "CMPI_nameString");

/* StatusCodes */
_Static_assert(CMPI_RC_OK == 0, "CMPI_RC_OK");
_Static_assert(CMPI_RC_ERR_FAILED == 1, "CMPI_RC_ERR_FAILED");
_Static_assert(CMPI_RC_ERR_ACCESS_DENIED == 2, "CMPI_RC_ERR_ACCESS_DENIED");
_Static_assert(CMPI_RC_ERR_INVALID_NAMESPACE == 3, "CMPI_RC_ERR_INVALID_NAMESPACE");
_Static_assert(CMPI_RC_ERR_INVALID_PARAMETER == 4, "CMPI_RC_ERR_INVALID_PARAMETER");
_Static_assert(CMPI_RC_ERR_INVALID_CLASS == 5, "CMPI_RC_ERR_INVALID_CLASS");
_Static_assert(CMPI_RC_ERR_NOT_FOUND == 6, "CMPI_RC_ERR_NOT_FOUND");
_Static_assert(CMPI_RC_ERR_NOT_SUPPORTED == 7, "CMPI_RC_ERR_NOT_SUPPORTED");
_Static_assert(CMPI_RC_ERR_CLASS_HAS_CHILDREN == 8, "CMPI_RC_ERR_CLASS_HAS_CHILDREN");
_Static_assert(CMPI_RC_ERR_CLASS_HAS_INSTANCES == 9, "CMPI_RC_ERR_CLASS_HAS_INSTANCES");
_Static_assert(CMPI_RC_ERR_INVALID_SUPERCLASS == 10, "CMPI_RC_ERR_INVALID_SUPERCLASS");
_Static_assert(CMPI_RC_ERR_ALREADY_EXISTS == 11, "CMPI_RC_ERR_ALREADY_EXISTS");
_Static_assert(CMPI_RC_ERR_NO_SUCH_PROPERTY == 12, "CMPI_RC_ERR_NO_SUCH_PROPERTY");
_Static_assert(CMPI_RC_ERR_TYPE_MISMATCH == 13, "CMPI_RC_ERR_TYPE_MISMATCH");
_Static_assert(CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED == 14,
               "CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED");
_Static_assert(CMPI_RC_ERR_INVALID_QUERY == 15, "CMPI_RC_ERR_INVALID_QUERY");
_Static_assert(CMPI_RC_ERR_METHOD_NOT_AVAILABLE == 16, "CMPI_RC_ERR_METHOD_NOT_AVAILABLE");
_Static_assert(CMPI_RC_ERR_METHOD_NOT_FOUND == 17, "CMPI_RC_ERR_METHOD_NOT_FOUND");
_Static_assert(CMPI_RC_NO_MORE_ELEMENTS == 18, "CMPI_RC_NO_MORE_ELEMENTS");
_Static_assert(CMPI_RC_ERR_SERVER_LIMITS_EXCEEDED == 27, "CMPI_RC_ERR_SERVER_LIMITS_EXCEEDED");
_Static_assert(CMPI_RC_ERR_QUERY_FEATURE_NOT_SUPPORTED == 29,
               "CMPI_RC_ERR_QUERY_FEATURE_NOT_SUPPORTED");
_Static_assert(CMPI_RC_DO_NOT_UNLOAD == 50, "CMPI_RC_DO_NOT_UNLOAD");
_Static_assert(CMPI_RC_NEVER_UNLOAD == 51, "CMPI_RC_NEVER_UNLOAD");
_Static_assert(CMPI_RC_ERR_INVALID_HANDLE == 60, "CMPI_RC_ERR_INVALID_HANDLE");
_Static_assert(CMPI_RC_ERR_INVALID_DATA_TYPE == 61, "CMPI_RC_ERR_INVALID_DATA_TYPE");
_Static_assert(CMPI_RC_ERR_NOT_IN_CODEPAGE == 62, "CMPI_RC_ERR_NOT_IN_CODEPAGE");
_Static_assert(CMPI_RC_ERROR_SYSTEM == 100, "CMPI_RC_ERROR_SYSTEM");
_Static_assert(CMPI_RC_ERROR == 200, "CMPI_RC_ERROR");

/* ValueStates */
_Static_assert(CMPI_goodValue == 0, "CMPI_goodValue");
_Static_assert(CMPI_nullValue == 0x100, "CMPI_nullValue");
_Static_assert(CMPI_keyValue == 0x200, "CMPI_keyValue");
_Static_assert(CMPI_notFound == 0x400, "CMPI_notFound");
_Static_assert(CMPI_badValue == 0x8000, "CMPI_badValue");

/* BrokerCapabilities */
_Static_assert(CMPI_MB_BasicRead == 1, "CMPI_MB_BasicRead");
_Static_assert(CMPI_MB_Class_0 == 1, "CMPI_MB_Class_0");
_Static_assert(CMPI_MB_BasicWrite == 3, "CMPI_MB_BasicWrite");
_Static_assert(CMPI_MB_Class_1 == 3, "CMPI_MB_Class_1");
_Static_assert(CMPI_MB_Class_2 == 7, "CMPI_MB_Class_2");
_Static_assert(CMPI_MB_InstanceManipulation == 7, "CMPI_MB_InstanceManipulation");
_Static_assert(CMPI_MB_AssociationTraversal == 9, "CMPI_MB_AssociationTraversal");
_Static_assert(CMPI_MB_QueryExecution == 17, "CMPI_MB_QueryExecution");
_Static_assert(CMPI_MB_QueryNormalization == 49, "CMPI_MB_QueryNormalization");
_Static_assert(CMPI_MB_BasicQualifierSupport == 71, "CMPI_MB_BasicQualifierSupport");
_Static_assert(CMPI_MB_Indications == 0x81, "CMPI_MB_Indications");
_Static_assert(CMPI_MB_OSEncapsulationSupport == 0x100, "CMPI_MB_OSEncapsulationSupport");
_Static_assert(CMPI_MB_Supports_PropertyMI == 0x100, "CMPI_MB_Supports_PropertyMI");
_Static_assert(CMPI_MB_Supports_IndicationMI == 0x200, "CMPI_MB_Supports_IndicationMI");
_Static_assert(CMPI_MB_Supports_IndicationPolling == 0x400, "CMPI_MB_Supports_IndicationPolling");
_Static_assert(CMPI_MB_Supports_QueryNormalization == 0x800, "CMPI_MB_Supports_QueryNormalization");
_Static_assert(CMPI_MB_Supports_Qualifier == 0x1000, "CMPI_MB_Supports_Qualifier");
_Static_assert(CMPI_MB_Supports_Schema == 0x3000, "CMPI_MB_Supports_Schema");
_Static_assert(CMPI_MB_Supports_MemEnhancements == 0x4000, "CMPI_MB_Supports_MemEnhancements");
_Static_assert(CMPI_MB_Supports_Extended_Error == 0x8000, "CMPI_MB_Supports_Extended_Error");
_Static_assert(CMPI_MB_Logging == 0x10000, "CMPI_MB_Logging");
_Static_assert(CMPI_MB_Tracing == 0x20000, "CMPI_MB_Tracing");
_Static_assert(CMPI_MB_PropertyFiltering == 0x40001, "CMPI_MB_PropertyFiltering");
_Static_assert(CMPI_MB_CodepageConversion == 0x80000, "CMPI_MB_CodepageConversion");

/* FlagsSeveritiesLevelsAndOperators */
_Static_assert(CMPI_FLAG_DeepInheritance == 2, "CMPI_FLAG_DeepInheritance");
_Static_assert(CMPI_FLAG_IncludeClassOrigin == 8, "CMPI_FLAG_IncludeClassOrigin");
_Static_assert(CMPI_FLAG_IncludeQualifiers == 4, "CMPI_FLAG_IncludeQualifiers");
_Static_assert(CMPI_FLAG_LocalOnly == 1, "CMPI_FLAG_LocalOnly");
_Static_assert(CMPI_SEV_ERROR == 1, "CMPI_SEV_ERROR");
_Static_assert(CMPI_SEV_INFO == 2, "CMPI_SEV_INFO");
_Static_assert(CMPI_SEV_WARNING == 3, "CMPI_SEV_WARNING");
_Static_assert(CMPI_LEV_INFO == 1, "CMPI_LEV_INFO");
_Static_assert(CMPI_LEV_WARNING == 2, "CMPI_LEV_WARNING");
_Static_assert(CMPI_LEV_VERBOSE == 3, "CMPI_LEV_VERBOSE");
_Static_assert(CMPI_DEV_DEBUG == 4, "CMPI_DEV_DEBUG");
_Static_assert(CMPI_PredOp_Equals == 1, "CMPI_PredOp_Equals");
_Static_assert(CMPI_PredOp_NotEquals == 2, "CMPI_PredOp_NotEquals");
_Static_assert(CMPI_PredOp_LessThan == 3, "CMPI_PredOp_LessThan");
_Static_assert(CMPI_PredOp_GreaterThanOrEquals == 4, "CMPI_PredOp_GreaterThanOrEquals");
_Static_assert(CMPI_PredOp_GreaterThan == 5, "CMPI_PredOp_GreaterThan");
_Static_assert(CMPI_PredOp_LessThanOrEquals == 6, "CMPI_PredOp_LessThanOrEquals");
_Static_assert(CMPI_PredOp_Isa == 7, "CMPI_PredOp_Isa");
_Static_assert(CMPI_PredOp_NotIsa == 8, "CMPI_PredOp_NotIsa");
_Static_assert(CMPI_PredOp_Like == 9, "CMPI_PredOp_Like");
_Static_assert(CMPI_PredOp_NotLike == 10, "CMPI_PredOp_NotLike");
_Static_assert(CMPI_PredOp_Not_Null == 11, "CMPI_PredOp_Not_Null");
_Static_assert(CMPI_PredOp_Null == 12, "CMPI_PredOp_Null");
_Static_assert(CMPI_PredOp_And == 13, "CMPI_PredOp_And");
_Static_assert(CMPI_PredOp_Or == 14, "CMPI_PredOp_Or");

/* ConditionForms */
_Static_assert(CMPI_COND_COD == 1, "CMPI_COND_COD");
_Static_assert(CMPI_COND_DOC == 0, "CMPI_COND_DOC");

/* ErrorTypes */
_Static_assert(UnknownErrorType == 0, "UnknownErrorType");
_Static_assert(OtherErrorType == 1, "OtherErrorType");
_Static_assert(CommunicationsError == 2, "CommunicationsError");
_Static_assert(QualityOfServiceError == 3, "QualityOfServiceError");
_Static_assert(SoftwareError == 4, "SoftwareError");
_Static_assert(HardwareError == 5, "HardwareError");
_Static_assert(EnvironmentalError == 6, "EnvironmentalError");
_Static_assert(SecurityError == 7, "SecurityError");
_Static_assert(Oversubscription_Error == 8, "Oversubscription_Error");
_Static_assert(UnavailableResourceError == 9, "UnavailableResourceError");
_Static_assert(UnsupportedOperationError == 10, "UnsupportedOperationError");
_Static_assert(OversubscriptionError == 8, "OversubscriptionError");

/* ErrorSeverities */
_Static_assert(ErrorSevUnknown == 0, "ErrorSevUnknown");
_Static_assert(ErrorSevLow == 2, "ErrorSevLow");
_Static_assert(ErrorSevMedium == 3, "ErrorSevMedium");
_Static_assert(ErrorSevHigh == 4, "ErrorSevHigh");
_Static_assert(ErrorSevFatal == 5, "ErrorSevFatal");

/* ErrorSourceFormats */
_Static_assert(UnknownErrorSrcFormat == 0, "UnknownErrorSrcFormat");
_Static_assert(OtherErrorSrcFormat == 1, "OtherErrorSrcFormat");
_Static_assert(CIMObjectHandle == 2, "CIMObjectHandle");

/* ProbableCauses */
_Static_assert(ErrorProbableCauseUnknown == 0, "ErrorProbableCauseUnknown");
_Static_assert(ErrorProbableCauseOther == 1, "ErrorProbableCauseOther");
_Static_assert(Adapter_Card_Error == 2, "Adapter_Card_Error");
_Static_assert(Application_Subsystem_Failure == 3, "Application_Subsystem_Failure");
_Static_assert(Bandwidth_Reduced == 4, "Bandwidth_Reduced");
_Static_assert(Connection_Establishment_Error == 5, "Connection_Establishment_Error");
_Static_assert(Communications_Protocol_Error == 6, "Communications_Protocol_Error");
_Static_assert(Communications_Subsystem_Failure == 7, "Communications_Subsystem_Failure");
_Static_assert(Configuration_Customization_Error == 8, "Configuration_Customization_Error");
_Static_assert(Congestion == 9, "Congestion");
_Static_assert(Corrupt_Data == 10, "Corrupt_Data");
_Static_assert(CPU_Cycles_Limit_Exceeded == 11, "CPU_Cycles_Limit_Exceeded");
_Static_assert(Dataset_Modem_Error == 12, "Dataset_Modem_Error");
_Static_assert(Degraded_Signal == 13, "Degraded_Signal");
_Static_assert(DTE_DCE_Interface_Error == 14, "DTE_DCE_Interface_Error");
_Static_assert(Enclosure_Door_Open == 15, "Enclosure_Door_Open");
_Static_assert(Equipment_Malfunction == 16, "Equipment_Malfunction");
_Static_assert(Excessive_Vibration == 17, "Excessive_Vibration");
_Static_assert(File_Format_Error == 18, "File_Format_Error");
_Static_assert(Fire_Detected == 19, "Fire_Detected");
_Static_assert(Flood_Detected == 20, "Flood_Detected");
_Static_assert(Framing_Error == 21, "Framing_Error");
_Static_assert(HVAC_Problem == 22, "HVAC_Problem");
_Static_assert(Humidity_Unacceptable == 23, "Humidity_Unacceptable");
_Static_assert(IO_Device_Error == 24, "IO_Device_Error");
_Static_assert(Input_Device_Error == 25, "Input_Device_Error");
_Static_assert(LAN_Error == 26, "LAN_Error");
_Static_assert(Non_Toxic_Leak_Detected == 27, "Non_Toxic_Leak_Detected");
_Static_assert(Local_Node_Transmission_Error == 28, "Local_Node_Transmission_Error");
_Static_assert(Loss_of_Frame == 29, "Loss_of_Frame");
_Static_assert(Loss_of_Signal == 30, "Loss_of_Signal");
_Static_assert(Material_Supply_Exhausted == 31, "Material_Supply_Exhausted");
_Static_assert(Multiplexer_Problem == 32, "Multiplexer_Problem");
_Static_assert(Out_of_Memory == 33, "Out_of_Memory");
_Static_assert(Output_Device_Error == 34, "Output_Device_Error");
_Static_assert(Performance_Degraded == 35, "Performance_Degraded");
_Static_assert(Power_Problem == 36, "Power_Problem");
_Static_assert(Pressure_Unacceptable == 37, "Pressure_Unacceptable");
_Static_assert(Processor_Problem_Internal_Machine_Error == 38,
               "Processor_Problem_Internal_Machine_Error");
_Static_assert(Pump_Failure == 39, "Pump_Failure");
_Static_assert(Queue_Size_Exceeded == 40, "Queue_Size_Exceeded");
_Static_assert(Receive_Failure == 41, "Receive_Failure");
_Static_assert(Receiver_Failure == 42, "Receiver_Failure");
_Static_assert(Remote_Node_Transmission_Error == 43, "Remote_Node_Transmission_Error");
_Static_assert(Resource_at_or_Nearing_Capacity == 44, "Resource_at_or_Nearing_Capacity");
_Static_assert(Response_Time_Excessive == 45, "Response_Time_Excessive");
_Static_assert(Retransmission_Rate_Excessive == 46, "Retransmission_Rate_Excessive");
_Static_assert(Software_Error == 47, "Software_Error");
_Static_assert(Software_Program_Abnormally_Terminated == 48,
               "Software_Program_Abnormally_Terminated");
_Static_assert(Software_Program_Error_Incorrect_Results == 49,
               "Software_Program_Error_Incorrect_Results");
_Static_assert(Storage_Capacity_Problem == 50, "Storage_Capacity_Problem");
_Static_assert(Temperature_Unacceptable == 51, "Temperature_Unacceptable");
_Static_assert(Threshold_Crossed == 52, "Threshold_Crossed");
_Static_assert(Timing_Problem == 53, "Timing_Problem");
_Static_assert(Toxic_Leak_Detected == 54, "Toxic_Leak_Detected");
_Static_assert(Transmit_Failure == 55, "Transmit_Failure");
_Static_assert(Transmitter_Failure == 56, "Transmitter_Failure");
_Static_assert(Underlying_Resource_Unavailable == 57, "Underlying_Resource_Unavailable");
_Static_assert(Version_Mismatch == 58, "Version_Mismatch");
_Static_assert(Previous_Alert_Cleared == 59, "Previous_Alert_Cleared");
_Static_assert(Login_Attempts_Failed == 60, "Login_Attempts_Failed");
_Static_assert(Software_Virus_Detected == 61, "Software_Virus_Detected");
_Static_assert(Hardware_Security_Breached == 62, "Hardware_Security_Breached");
_Static_assert(Denial_of_Service_Detected == 63, "Denial_of_Service_Detected");
_Static_assert(Security_Credential_Mismatch == 64, "Security_Credential_Mismatch");
_Static_assert(Unauthorized_Access == 65, "Unauthorized_Access");
_Static_assert(Alarm_Received == 66, "Alarm_Received");
_Static_assert(Loss_of_Pointer == 67, "Loss_of_Pointer");
_Static_assert(Payload_Mismatch == 68, "Payload_Mismatch");
_Static_assert(Transmission_Error == 69, "Transmission_Error");
_Static_assert(Excessive_Error_Rate == 70, "Excessive_Error_Rate");
_Static_assert(Trace_Problem == 71, "Trace_Problem");
_Static_assert(Element_Unavailable == 72, "Element_Unavailable");
_Static_assert(Element_Missing == 73, "Element_Missing");
_Static_assert(Loss_of_Multi_Frame == 74, "Loss_of_Multi_Frame");
_Static_assert(Broadcast_Channel_Failure == 75, "Broadcast_Channel_Failure");
_Static_assert(Invalid_Message_Received == 76, "Invalid_Message_Received");
_Static_assert(Routing_Failure == 77, "Routing_Failure");
_Static_assert(Backplane_Failure == 78, "Backplane_Failure");
_Static_assert(Identifier_Duplication == 79, "Identifier_Duplication");
_Static_assert(Protection_Path_Failure == 80, "Protection_Path_Failure");
_Static_assert(Sync_Loss_or_Mismatch == 81, "Sync_Loss_or_Mismatch");
_Static_assert(Terminal_Problem == 82, "Terminal_Problem");
_Static_assert(Real_Time_Clock_Failure == 83, "Real_Time_Clock_Failure");
_Static_assert(Antenna_Failure == 84, "Antenna_Failure");
_Static_assert(Battery_Charging_Failure == 85, "Battery_Charging_Failure");
_Static_assert(Disk_Failure == 86, "Disk_Failure");
_Static_assert(Frequency_Hopping_Failure == 87, "Frequency_Hopping_Failure");
_Static_assert(Loss_of_Redundancy == 88, "Loss_of_Redundancy");
_Static_assert(Power_Supply_Failure == 89, "Power_Supply_Failure");
_Static_assert(Signal_Quality_Problem == 90, "Signal_Quality_Problem");
_Static_assert(Battery_Discharging == 91, "Battery_Discharging");
_Static_assert(Battery_Failure == 92, "Battery_Failure");
_Static_assert(Commercial_Power_Problem == 93, "Commercial_Power_Problem");
_Static_assert(Fan_Failure == 94, "Fan_Failure");
_Static_assert(Engine_Failure == 95, "Engine_Failure");
_Static_assert(Sensor_Failure == 96, "Sensor_Failure");
_Static_assert(Fuse_Failure == 97, "Fuse_Failure");
_Static_assert(Generator_Failure == 98, "Generator_Failure");
_Static_assert(Low_Battery == 99, "Low_Battery");
_Static_assert(Low_Fuel == 100, "Low_Fuel");
_Static_assert(Low_Water == 101, "Low_Water");
_Static_assert(Explosive_Gas == 102, "Explosive_Gas");
_Static_assert(High_Winds == 103, "High_Winds");
_Static_assert(Ice_Buildup == 104, "Ice_Buildup");
_Static_assert(Smoke == 105, "Smoke");
_Static_assert(Memory_Mismatch == 106, "Memory_Mismatch");
_Static_assert(Out_of_CPU_Cycles == 107, "Out_of_CPU_Cycles");
_Static_assert(Software_Environment_Problem == 108, "Software_Environment_Problem");
_Static_assert(Software_Download_Failure == 109, "Software_Download_Failure");
_Static_assert(Element_Reinitialized == 110, "Element_Reinitialized");
_Static_assert(Timeout == 111, "Timeout");
_Static_assert(Logging_Problems == 112, "Logging_Problems");
_Static_assert(Leak_Detected == 113, "Leak_Detected");
_Static_assert(Protection_Mechanism_Failure == 114, "Protection_Mechanism_Failure");
_Static_assert(Protecting_Resource_Failure == 115, "Protecting_Resource_Failure");
_Static_assert(Database_Inconsistency == 116, "Database_Inconsistency");
_Static_assert(Authentication_Failure == 117, "Authentication_Failure");
_Static_assert(Breach_of_Confidentiality == 118, "Breach_of_Confidentiality");
_Static_assert(Cable_Tamper == 119, "Cable_Tamper");
_Static_assert(Delayed_Information == 120, "Delayed_Information");
_Static_assert(Duplicate_Information == 121, "Duplicate_Information");
_Static_assert(Information_Missing == 122, "Information_Missing");
_Static_assert(Information_Modification == 123, "Information_Modification");
_Static_assert(Information_Out_of_Sequence == 124, "Information_Out_of_Sequence");
_Static_assert(Key_Expired == 125, "Key_Expired");
_Static_assert(Non_Repudiation_Failure == 126, "Non_Repudiation_Failure");
_Static_assert(Out_of_Hours_Activity == 127, "Out_of_Hours_Activity");
_Static_assert(Out_of_Service == 128, "Out_of_Service");
_Static_assert(Procedural_Error == 129, "Procedural_Error");
_Static_assert(Unexpected_Information == 130, "Unexpected_Information");
_Static_assert(Leak_Detected_113 == 113, "Leak_Detected_113");

/* Versions */
_Static_assert(CMPIVersion51 == 51, "CMPIVersion51");
_Static_assert(CMPIVersion60 == 60, "CMPIVersion60");
_Static_assert(CMPIVersion70 == 70, "CMPIVersion70");
_Static_assert(CMPIVersion80 == 80, "CMPIVersion80");
_Static_assert(CMPIVersion85 == 85, "CMPIVersion85");
_Static_assert(CMPIVersion86 == 86, "CMPIVersion86");
_Static_assert(CMPIVersion87 == 87, "CMPIVersion87");
_Static_assert(CMPIVersion90 == 90, "CMPIVersion90");
_Static_assert(CMPIVersion100 == 100, "CMPIVersion100");
_Static_assert(CMPIVersion200 == 200, "CMPIVersion200");
_Static_assert(CMPIVersion210 == 210, "CMPIVersion210");
_Static_assert(CMPICurrentVersion == 200, "CMPICurrentVersion");
_Static_assert(CMPI_VERSION == 0xc8, "CMPI_VERSION");
