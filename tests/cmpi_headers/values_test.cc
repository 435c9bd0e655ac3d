// Numbers and names of the CMPI interface, checked as C++.
#include <cmpidt.h>
#include <gtest/gtest.h>

TEST(CmpiValues, BaseTypes) {
  EXPECT_EQ(CMPI_null, 0);
  EXPECT_EQ(CMPI_boolean, 2);
  EXPECT_EQ(CMPI_char16, 3);
  EXPECT_EQ(CMPI_real32, 8);
  EXPECT_EQ(CMPI_real64, 12);
  EXPECT_EQ(CMPI_uint8, 0x80);
  EXPECT_EQ(CMPI_uint16, 0x90);
  EXPECT_EQ(CMPI_uint32, 0xa0);
  EXPECT_EQ(CMPI_uint64, 0xb0);
  EXPECT_EQ(CMPI_sint8, 0xc0);
  EXPECT_EQ(CMPI_sint16, 0xd0);
  EXPECT_EQ(CMPI_sint32, 0xe0);
  EXPECT_EQ(CMPI_sint64, 0xf0);
  EXPECT_EQ(CMPI_instance, 0x1000);
  EXPECT_EQ(CMPI_ref, 0x1100);
  EXPECT_EQ(CMPI_args, 0x1200);
  EXPECT_EQ(CMPI_class, 0x1300);
  EXPECT_EQ(CMPI_filter, 0x1400);
  EXPECT_EQ(CMPI_enumeration, 0x1500);
  EXPECT_EQ(CMPI_string, 0x1600);
  EXPECT_EQ(CMPI_chars, 0x1700);
  EXPECT_EQ(CMPI_dateTime, 0x1800);
  EXPECT_EQ(CMPI_ptr, 0x1900);
  EXPECT_EQ(CMPI_charsptr, 0x1a00);
}

TEST(CmpiValues, GroupMasks) {
  EXPECT_EQ(CMPI_SIMPLE, 2);
  EXPECT_EQ(CMPI_REAL, 8);
  EXPECT_EQ(CMPI_UINT, 0x80);
  EXPECT_EQ(CMPI_SINT, 0xc0);
  EXPECT_EQ(CMPI_INTEGER, 0xc0);
  EXPECT_EQ(CMPI_ENC, 0x1000);
  EXPECT_EQ(CMPI_ARRAY, 0x2000);
}

TEST(CmpiValues, ArrayTypes) {
  EXPECT_EQ(CMPI_booleanA, 0x2002);
  EXPECT_EQ(CMPI_char16A, 0x2003);
  EXPECT_EQ(CMPI_real32A, 0x2008);
  EXPECT_EQ(CMPI_real64A, 0x200c);
  EXPECT_EQ(CMPI_uint8A, 0x2080);
  EXPECT_EQ(CMPI_uint16A, 0x2090);
  EXPECT_EQ(CMPI_uint32A, 0x20a0);
  EXPECT_EQ(CMPI_uint64A, 0x20b0);
  EXPECT_EQ(CMPI_sint8A, 0x20c0);
  EXPECT_EQ(CMPI_sint16A, 0x20d0);
  EXPECT_EQ(CMPI_sint32A, 0x20e0);
  EXPECT_EQ(CMPI_sint64A, 0x20f0);
  EXPECT_EQ(CMPI_instanceA, 0x3000);
  EXPECT_EQ(CMPI_refA, 0x3100);
  EXPECT_EQ(CMPI_stringA, 0x3600);
  EXPECT_EQ(CMPI_charsA, 0x3700);
  EXPECT_EQ(CMPI_dateTimeA, 0x3800);
  EXPECT_EQ(CMPI_charsptrA, 0x3a00);
}

TEST(CmpiValues, Aliases) {
  EXPECT_EQ(CMPI_Byte, 0xc0);
  EXPECT_EQ(CMPI_Short, 0xd0);
  EXPECT_EQ(CMPI_Int, 0xe0);
  EXPECT_EQ(CMPI_Long, 0xf0);
  EXPECT_EQ(CMPI_Float, 8);
  EXPECT_EQ(CMPI_Double, 12);
  EXPECT_EQ(CMPI_keyInteger, 0xf0);
  EXPECT_EQ(CMPI_keyString, 0x1600);
  EXPECT_EQ(CMPI_keyBoolean, 2);
  EXPECT_EQ(CMPI_keyRef, 0x1100);
  EXPECT_EQ(CMPI_charString, 0x1600);
  EXPECT_EQ(CMPI_integerString, 0x16f0);
  EXPECT_EQ(CMPI_realString, 0x160c);
  EXPECT_EQ(CMPI_numericString, 0x16fc);
  EXPECT_EQ(CMPI_booleanString, 0x1602);
  EXPECT_EQ(CMPI_dateTimeString, 0x1e00);
  EXPECT_EQ(CMPI_classNameString, 0x1700);
  EXPECT_EQ(CMPI_nameString, 0x1e00);
}

TEST(CmpiValues, StatusCodes) {
  EXPECT_EQ(CMPI_RC_OK, 0);
  EXPECT_EQ(CMPI_RC_ERR_FAILED, 1);
  EXPECT_EQ(CMPI_RC_ERR_ACCESS_DENIED, 2);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_NAMESPACE, 3);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_PARAMETER, 4);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_CLASS, 5);
  EXPECT_EQ(CMPI_RC_ERR_NOT_FOUND, 6);
  EXPECT_EQ(CMPI_RC_ERR_NOT_SUPPORTED, 7);
  EXPECT_EQ(CMPI_RC_ERR_CLASS_HAS_CHILDREN, 8);
  EXPECT_EQ(CMPI_RC_ERR_CLASS_HAS_INSTANCES, 9);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_SUPERCLASS, 10);
  EXPECT_EQ(CMPI_RC_ERR_ALREADY_EXISTS, 11);
  EXPECT_EQ(CMPI_RC_ERR_NO_SUCH_PROPERTY, 12);
  EXPECT_EQ(CMPI_RC_ERR_TYPE_MISMATCH, 13);
  EXPECT_EQ(CMPI_RC_ERR_QUERY_LANGUAGE_NOT_SUPPORTED, 14);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_QUERY, 15);
  EXPECT_EQ(CMPI_RC_ERR_METHOD_NOT_AVAILABLE, 16);
  EXPECT_EQ(CMPI_RC_ERR_METHOD_NOT_FOUND, 17);
  EXPECT_EQ(CMPI_RC_NO_MORE_ELEMENTS, 18);
  EXPECT_EQ(CMPI_RC_ERR_SERVER_LIMITS_EXCEEDED, 27);
  EXPECT_EQ(CMPI_RC_ERR_QUERY_FEATURE_NOT_SUPPORTED, 29);
  EXPECT_EQ(CMPI_RC_DO_NOT_UNLOAD, 50);
  EXPECT_EQ(CMPI_RC_NEVER_UNLOAD, 51);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_HANDLE, 60);
  EXPECT_EQ(CMPI_RC_ERR_INVALID_DATA_TYPE, 61);
  EXPECT_EQ(CMPI_RC_ERR_NOT_IN_CODEPAGE, 62);
  EXPECT_EQ(CMPI_RC_ERROR_SYSTEM, 100);
  EXPECT_EQ(CMPI_RC_ERROR, 200);
}

TEST(CmpiValues, ValueStates) {
  EXPECT_EQ(CMPI_goodValue, 0);
  EXPECT_EQ(CMPI_nullValue, 0x100);
  EXPECT_EQ(CMPI_keyValue, 0x200);
  EXPECT_EQ(CMPI_notFound, 0x400);
  EXPECT_EQ(CMPI_badValue, 0x8000);
}

TEST(CmpiValues, BrokerCapabilities) {
  EXPECT_EQ(CMPI_MB_BasicRead, 1);
  EXPECT_EQ(CMPI_MB_Class_0, 1);
  EXPECT_EQ(CMPI_MB_BasicWrite, 3);
  EXPECT_EQ(CMPI_MB_Class_1, 3);
  EXPECT_EQ(CMPI_MB_Class_2, 7);
  EXPECT_EQ(CMPI_MB_InstanceManipulation, 7);
  EXPECT_EQ(CMPI_MB_AssociationTraversal, 9);
  EXPECT_EQ(CMPI_MB_QueryExecution, 17);
  EXPECT_EQ(CMPI_MB_QueryNormalization, 49);
  EXPECT_EQ(CMPI_MB_BasicQualifierSupport, 71);
  EXPECT_EQ(CMPI_MB_Indications, 0x81);
  EXPECT_EQ(CMPI_MB_OSEncapsulationSupport, 0x100);
  EXPECT_EQ(CMPI_MB_Supports_PropertyMI, 0x100);
  EXPECT_EQ(CMPI_MB_Supports_IndicationMI, 0x200);
  EXPECT_EQ(CMPI_MB_Supports_IndicationPolling, 0x400);
  EXPECT_EQ(CMPI_MB_Supports_QueryNormalization, 0x800);
  EXPECT_EQ(CMPI_MB_Supports_Qualifier, 0x1000);
  EXPECT_EQ(CMPI_MB_Supports_Schema, 0x3000);
  EXPECT_EQ(CMPI_MB_Supports_MemEnhancements, 0x4000);
  EXPECT_EQ(CMPI_MB_Supports_Extended_Error, 0x8000);
  EXPECT_EQ(CMPI_MB_Logging, 0x10000);
  EXPECT_EQ(CMPI_MB_Tracing, 0x20000);
  EXPECT_EQ(CMPI_MB_PropertyFiltering, 0x40001);
  EXPECT_EQ(CMPI_MB_CodepageConversion, 0x80000);
}

TEST(CmpiValues, FlagsSeveritiesLevelsAndOperators) {
  EXPECT_EQ(CMPI_FLAG_DeepInheritance, 2);
  EXPECT_EQ(CMPI_FLAG_IncludeClassOrigin, 8);
  EXPECT_EQ(CMPI_FLAG_IncludeQualifiers, 4);
  EXPECT_EQ(CMPI_FLAG_LocalOnly, 1);
  EXPECT_EQ(CMPI_SEV_ERROR, 1);
  EXPECT_EQ(CMPI_SEV_INFO, 2);
  EXPECT_EQ(CMPI_SEV_WARNING, 3);
  EXPECT_EQ(CMPI_LEV_INFO, 1);
  EXPECT_EQ(CMPI_LEV_WARNING, 2);
  EXPECT_EQ(CMPI_LEV_VERBOSE, 3);
  EXPECT_EQ(CMPI_DEV_DEBUG, 4);
  EXPECT_EQ(CMPI_PredOp_Equals, 1);
  EXPECT_EQ(CMPI_PredOp_NotEquals, 2);
  EXPECT_EQ(CMPI_PredOp_LessThan, 3);
  EXPECT_EQ(CMPI_PredOp_GreaterThanOrEquals, 4);
  EXPECT_EQ(CMPI_PredOp_GreaterThan, 5);
  EXPECT_EQ(CMPI_PredOp_LessThanOrEquals, 6);
  EXPECT_EQ(CMPI_PredOp_Isa, 7);
  EXPECT_EQ(CMPI_PredOp_NotIsa, 8);
  EXPECT_EQ(CMPI_PredOp_Like, 9);
  EXPECT_EQ(CMPI_PredOp_NotLike, 10);
  EXPECT_EQ(CMPI_PredOp_Not_Null, 11);
  EXPECT_EQ(CMPI_PredOp_Null, 12);
  EXPECT_EQ(CMPI_PredOp_And, 13);
  EXPECT_EQ(CMPI_PredOp_Or, 14);
}

TEST(CmpiValues, ConditionForms) {
  EXPECT_EQ(CMPI_COND_COD, 1);
  EXPECT_EQ(CMPI_COND_DOC, 0);
}

TEST(CmpiValues, ErrorTypes) {
  EXPECT_EQ(UnknownErrorType, 0);
  EXPECT_EQ(OtherErrorType, 1);
  EXPECT_EQ(CommunicationsError, 2);
  EXPECT_EQ(QualityOfServiceError, 3);
  EXPECT_EQ(SoftwareError, 4);
  EXPECT_EQ(HardwareError, 5);
  EXPECT_EQ(EnvironmentalError, 6);
  EXPECT_EQ(SecurityError, 7);
  EXPECT_EQ(Oversubscription_Error, 8);
  EXPECT_EQ(UnavailableResourceError, 9);
  EXPECT_EQ(UnsupportedOperationError, 10);
  EXPECT_EQ(OversubscriptionError, 8);
}

TEST(CmpiValues, ErrorSeverities) {
  EXPECT_EQ(ErrorSevUnknown, 0);
  EXPECT_EQ(ErrorSevLow, 2);
  EXPECT_EQ(ErrorSevMedium, 3);
  EXPECT_EQ(ErrorSevHigh, 4);
  EXPECT_EQ(ErrorSevFatal, 5);
}

TEST(CmpiValues, ErrorSourceFormats) {
  EXPECT_EQ(UnknownErrorSrcFormat, 0);
  EXPECT_EQ(OtherErrorSrcFormat, 1);
  EXPECT_EQ(CIMObjectHandle, 2);
}

TEST(CmpiValues, ProbableCauses) {
  EXPECT_EQ(ErrorProbableCauseUnknown, 0);
  EXPECT_EQ(ErrorProbableCauseOther, 1);
  EXPECT_EQ(Adapter_Card_Error, 2);
  EXPECT_EQ(Application_Subsystem_Failure, 3);
  EXPECT_EQ(Bandwidth_Reduced, 4);
  EXPECT_EQ(Connection_Establishment_Error, 5);
  EXPECT_EQ(Communications_Protocol_Error, 6);
  EXPECT_EQ(Communications_Subsystem_Failure, 7);
  EXPECT_EQ(Configuration_Customization_Error, 8);
  EXPECT_EQ(Congestion, 9);
  EXPECT_EQ(Corrupt_Data, 10);
  EXPECT_EQ(CPU_Cycles_Limit_Exceeded, 11);
  EXPECT_EQ(Dataset_Modem_Error, 12);
  EXPECT_EQ(Degraded_Signal, 13);
  EXPECT_EQ(DTE_DCE_Interface_Error, 14);
  EXPECT_EQ(Enclosure_Door_Open, 15);
  EXPECT_EQ(Equipment_Malfunction, 16);
  EXPECT_EQ(Excessive_Vibration, 17);
  EXPECT_EQ(File_Format_Error, 18);
  EXPECT_EQ(Fire_Detected, 19);
  EXPECT_EQ(Flood_Detected, 20);
  EXPECT_EQ(Framing_Error, 21);
  EXPECT_EQ(HVAC_Problem, 22);
  EXPECT_EQ(Humidity_Unacceptable, 23);
  EXPECT_EQ(IO_Device_Error, 24);
  EXPECT_EQ(Input_Device_Error, 25);
  EXPECT_EQ(LAN_Error, 26);
  EXPECT_EQ(Non_Toxic_Leak_Detected, 27);
  EXPECT_EQ(Local_Node_Transmission_Error, 28);
  EXPECT_EQ(Loss_of_Frame, 29);
  EXPECT_EQ(Loss_of_Signal, 30);
  EXPECT_EQ(Material_Supply_Exhausted, 31);
  EXPECT_EQ(Multiplexer_Problem, 32);
  EXPECT_EQ(Out_of_Memory, 33);
  EXPECT_EQ(Output_Device_Error, 34);
  EXPECT_EQ(Performance_Degraded, 35);
  EXPECT_EQ(Power_Problem, 36);
  EXPECT_EQ(Pressure_Unacceptable, 37);
  EXPECT_EQ(Processor_Problem_Internal_Machine_Error, 38);
  EXPECT_EQ(Pump_Failure, 39);
  EXPECT_EQ(Queue_Size_Exceeded, 40);
  EXPECT_EQ(Receive_Failure, 41);
  EXPECT_EQ(Receiver_Failure, 42);
  EXPECT_EQ(Remote_Node_Transmission_Error, 43);
  EXPECT_EQ(Resource_at_or_Nearing_Capacity, 44);
  EXPECT_EQ(Response_Time_Excessive, 45);
  EXPECT_EQ(Retransmission_Rate_Excessive, 46);
  EXPECT_EQ(Software_Error, 47);
  EXPECT_EQ(Software_Program_Abnormally_Terminated, 48);
  EXPECT_EQ(Software_Program_Error_Incorrect_Results, 49);
  EXPECT_EQ(Storage_Capacity_Problem, 50);
  EXPECT_EQ(Temperature_Unacceptable, 51);
  EXPECT_EQ(Threshold_Crossed, 52);
  EXPECT_EQ(Timing_Problem, 53);
  EXPECT_EQ(Toxic_Leak_Detected, 54);
  EXPECT_EQ(Transmit_Failure, 55);
  EXPECT_EQ(Transmitter_Failure, 56);
  EXPECT_EQ(Underlying_Resource_Unavailable, 57);
  EXPECT_EQ(Version_Mismatch, 58);
  EXPECT_EQ(Previous_Alert_Cleared, 59);
  EXPECT_EQ(Login_Attempts_Failed, 60);
  EXPECT_EQ(Software_Virus_Detected, 61);
  EXPECT_EQ(Hardware_Security_Breached, 62);
  EXPECT_EQ(Denial_of_Service_Detected, 63);
  EXPECT_EQ(Security_Credential_Mismatch, 64);
  EXPECT_EQ(Unauthorized_Access, 65);
  EXPECT_EQ(Alarm_Received, 66);
  EXPECT_EQ(Loss_of_Pointer, 67);
  EXPECT_EQ(Payload_Mismatch, 68);
  EXPECT_EQ(Transmission_Error, 69);
  EXPECT_EQ(Excessive_Error_Rate, 70);
  EXPECT_EQ(Trace_Problem, 71);
  EXPECT_EQ(Element_Unavailable, 72);
  EXPECT_EQ(Element_Missing, 73);
  EXPECT_EQ(Loss_of_Multi_Frame, 74);
  EXPECT_EQ(Broadcast_Channel_Failure, 75);
  EXPECT_EQ(Invalid_Message_Received, 76);
  EXPECT_EQ(Routing_Failure, 77);
  EXPECT_EQ(Backplane_Failure, 78);
  EXPECT_EQ(Identifier_Duplication, 79);
  EXPECT_EQ(Protection_Path_Failure, 80);
  EXPECT_EQ(Sync_Loss_or_Mismatch, 81);
  EXPECT_EQ(Terminal_Problem, 82);
  EXPECT_EQ(Real_Time_Clock_Failure, 83);
  EXPECT_EQ(Antenna_Failure, 84);
  EXPECT_EQ(Battery_Charging_Failure, 85);
  EXPECT_EQ(Disk_Failure, 86);
  EXPECT_EQ(Frequency_Hopping_Failure, 87);
  EXPECT_EQ(Loss_of_Redundancy, 88);
  EXPECT_EQ(Power_Supply_Failure, 89);
  EXPECT_EQ(Signal_Quality_Problem, 90);
  EXPECT_EQ(Battery_Discharging, 91);
  EXPECT_EQ(Battery_Failure, 92);
  EXPECT_EQ(Commercial_Power_Problem, 93);
  EXPECT_EQ(Fan_Failure, 94);
  EXPECT_EQ(Engine_Failure, 95);
  EXPECT_EQ(Sensor_Failure, 96);
  EXPECT_EQ(Fuse_Failure, 97);
  EXPECT_EQ(Generator_Failure, 98);
  EXPECT_EQ(Low_Battery, 99);
  EXPECT_EQ(Low_Fuel, 100);
  EXPECT_EQ(Low_Water, 101);
  EXPECT_EQ(Explosive_Gas, 102);
  EXPECT_EQ(High_Winds, 103);
  EXPECT_EQ(Ice_Buildup, 104);
  EXPECT_EQ(Smoke, 105);
  EXPECT_EQ(Memory_Mismatch, 106);
  EXPECT_EQ(Out_of_CPU_Cycles, 107);
  EXPECT_EQ(Software_Environment_Problem, 108);
  EXPECT_EQ(Software_Download_Failure, 109);
  EXPECT_EQ(Element_Reinitialized, 110);
  EXPECT_EQ(Timeout, 111);
  EXPECT_EQ(Logging_Problems, 112);
  EXPECT_EQ(Leak_Detected, 113);
  EXPECT_EQ(Protection_Mechanism_Failure, 114);
  EXPECT_EQ(Protecting_Resource_Failure, 115);
  EXPECT_EQ(Database_Inconsistency, 116);
  EXPECT_EQ(Authentication_Failure, 117);
  EXPECT_EQ(Breach_of_Confidentiality, 118);
  EXPECT_EQ(Cable_Tamper, 119);
  EXPECT_EQ(Delayed_Information, 120);
  EXPECT_EQ(Duplicate_Information, 121);
  EXPECT_EQ(Information_Missing, 122);
  EXPECT_EQ(Information_Modification, 123);
  EXPECT_EQ(Information_Out_of_Sequence, 124);
  EXPECT_EQ(Key_Expired, 125);
  EXPECT_EQ(Non_Repudiation_Failure, 126);
  EXPECT_EQ(Out_of_Hours_Activity, 127);
  EXPECT_EQ(Out_of_Service, 128);
  EXPECT_EQ(Procedural_Error, 129);
  EXPECT_EQ(Unexpected_Information, 130);
  EXPECT_EQ(Leak_Detected_113, 113);
}

TEST(CmpiValues, Versions) {
  EXPECT_EQ(CMPIVersion51, 51);
  EXPECT_EQ(CMPIVersion60, 60);
  EXPECT_EQ(CMPIVersion70, 70);
  EXPECT_EQ(CMPIVersion80, 80);
  EXPECT_EQ(CMPIVersion85, 85);
  EXPECT_EQ(CMPIVersion86, 86);
  EXPECT_EQ(CMPIVersion87, 87);
  EXPECT_EQ(CMPIVersion90, 90);
  EXPECT_EQ(CMPIVersion100, 100);
  EXPECT_EQ(CMPIVersion200, 200);
  EXPECT_EQ(CMPIVersion210, 210);
  EXPECT_EQ(CMPICurrentVersion, 200);
  EXPECT_EQ(CMPI_VERSION, 0xc8);
}

TEST(CmpiValues, ContextEntriesAreCalledAsTheirMacros) {
  EXPECT_STREQ(CMPIInvocationFlags, "CMPIInvocationFlags");
  EXPECT_STREQ(CMPIInitNameSpace, "CMPIInitNameSpace");
  EXPECT_STREQ(CMPIPrincipal, "CMPIPrincipal");
  EXPECT_STREQ(CMPIRole, "CMPIRole");
  EXPECT_STREQ(CMPIAcceptLanguage, "CMPIAcceptLanguage");
  EXPECT_STREQ(CMPIContentLanguage, "CMPIContentLanguage");
}
