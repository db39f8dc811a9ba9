#pragma once

#include "Delegates/DelegateBase.h"
#include "Delegates/MulticastDelegateBase.h"

/*
 * Declarations of native delegate types. Parameters are types only.
 *
 *   DECLARE_DELEGATE(Name)                             one call without a result
 *   DECLARE_DELEGATE_RetVal(RetType, Name)             one call with a result
 *   DECLARE_MULTICAST_DELEGATE(Name)                   any number of calls
 *   DECLARE_EVENT(OwningType, Name)                    any number of calls, broadcast by the owner only
 *
 * each with _OneParam to _NineParams.
 */

#define HOST_DECLARE_DELEGATE(Name, RetType, ...) typedef TDelegate<RetType(__VA_ARGS__)> Name
#define HOST_DECLARE_MULTICAST_DELEGATE(Name, ...) typedef TMulticastDelegate<void(__VA_ARGS__)> Name
#define HOST_DECLARE_EVENT(OwningType, Name, ...) \
	class Name : private TMulticastDelegate<void(__VA_ARGS__)> \
	{ \
		friend OwningType; \
		using FMulticast = TMulticastDelegate<void(__VA_ARGS__)>; \
\
	public: \
		using FMulticast::FDelegate; \
		using FMulticast::Add; \
		using FMulticast::AddStatic; \
		using FMulticast::AddLambda; \
		using FMulticast::AddWeakLambda; \
		using FMulticast::AddUObject; \
		using FMulticast::AddUFunction; \
		using FMulticast::AddRaw; \
		using FMulticast::AddSP; \
		using FMulticast::AddSPLambda; \
		using FMulticast::Remove; \
		using FMulticast::RemoveAll; \
		using FMulticast::IsBoundToObject; \
	}

#define DECLARE_DELEGATE(Name) HOST_DECLARE_DELEGATE(Name, void)
#define DECLARE_DELEGATE_RetVal(RetType, Name) HOST_DECLARE_DELEGATE(Name, RetType)
#define DECLARE_MULTICAST_DELEGATE(Name) HOST_DECLARE_MULTICAST_DELEGATE(Name)
#define DECLARE_EVENT(OwningType, Name) HOST_DECLARE_EVENT(OwningType, Name)
#define DECLARE_DELEGATE_OneParam(Name, P1) HOST_DECLARE_DELEGATE(Name, void, P1)
#define DECLARE_DELEGATE_RetVal_OneParam(RetType, Name, P1) HOST_DECLARE_DELEGATE(Name, RetType, P1)
#define DECLARE_MULTICAST_DELEGATE_OneParam(Name, P1) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1)
#define DECLARE_EVENT_OneParam(OwningType, Name, P1) HOST_DECLARE_EVENT(OwningType, Name, P1)
#define DECLARE_DELEGATE_TwoParams(Name, P1, P2) HOST_DECLARE_DELEGATE(Name, void, P1, P2)
#define DECLARE_DELEGATE_RetVal_TwoParams(RetType, Name, P1, P2) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2)
#define DECLARE_MULTICAST_DELEGATE_TwoParams(Name, P1, P2) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2)
#define DECLARE_EVENT_TwoParams(OwningType, Name, P1, P2) HOST_DECLARE_EVENT(OwningType, Name, P1, P2)
#define DECLARE_DELEGATE_ThreeParams(Name, P1, P2, P3) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3)
#define DECLARE_DELEGATE_RetVal_ThreeParams(RetType, Name, P1, P2, P3) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3)
#define DECLARE_MULTICAST_DELEGATE_ThreeParams(Name, P1, P2, P3) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3)
#define DECLARE_EVENT_ThreeParams(OwningType, Name, P1, P2, P3) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3)
#define DECLARE_DELEGATE_FourParams(Name, P1, P2, P3, P4) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4)
#define DECLARE_DELEGATE_RetVal_FourParams(RetType, Name, P1, P2, P3, P4) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4)
#define DECLARE_MULTICAST_DELEGATE_FourParams(Name, P1, P2, P3, P4) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4)
#define DECLARE_EVENT_FourParams(OwningType, Name, P1, P2, P3, P4) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4)
#define DECLARE_DELEGATE_FiveParams(Name, P1, P2, P3, P4, P5) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4, P5)
#define DECLARE_DELEGATE_RetVal_FiveParams(RetType, Name, P1, P2, P3, P4, P5) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4, P5)
#define DECLARE_MULTICAST_DELEGATE_FiveParams(Name, P1, P2, P3, P4, P5) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4, P5)
#define DECLARE_EVENT_FiveParams(OwningType, Name, P1, P2, P3, P4, P5) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4, P5)
#define DECLARE_DELEGATE_SixParams(Name, P1, P2, P3, P4, P5, P6) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4, P5, P6)
#define DECLARE_DELEGATE_RetVal_SixParams(RetType, Name, P1, P2, P3, P4, P5, P6) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4, P5, P6)
#define DECLARE_MULTICAST_DELEGATE_SixParams(Name, P1, P2, P3, P4, P5, P6) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4, P5, P6)
#define DECLARE_EVENT_SixParams(OwningType, Name, P1, P2, P3, P4, P5, P6) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4, P5, P6)
#define DECLARE_DELEGATE_SevenParams(Name, P1, P2, P3, P4, P5, P6, P7) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4, P5, P6, P7)
#define DECLARE_DELEGATE_RetVal_SevenParams(RetType, Name, P1, P2, P3, P4, P5, P6, P7) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4, P5, P6, P7)
#define DECLARE_MULTICAST_DELEGATE_SevenParams(Name, P1, P2, P3, P4, P5, P6, P7) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4, P5, P6, P7)
#define DECLARE_EVENT_SevenParams(OwningType, Name, P1, P2, P3, P4, P5, P6, P7) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4, P5, P6, P7)
#define DECLARE_DELEGATE_EightParams(Name, P1, P2, P3, P4, P5, P6, P7, P8) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4, P5, P6, P7, P8)
#define DECLARE_DELEGATE_RetVal_EightParams(RetType, Name, P1, P2, P3, P4, P5, P6, P7, P8) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4, P5, P6, P7, P8)
#define DECLARE_MULTICAST_DELEGATE_EightParams(Name, P1, P2, P3, P4, P5, P6, P7, P8) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4, P5, P6, P7, P8)
#define DECLARE_EVENT_EightParams(OwningType, Name, P1, P2, P3, P4, P5, P6, P7, P8) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4, P5, P6, P7, P8)
#define DECLARE_DELEGATE_NineParams(Name, P1, P2, P3, P4, P5, P6, P7, P8, P9) HOST_DECLARE_DELEGATE(Name, void, P1, P2, P3, P4, P5, P6, P7, P8, P9)
#define DECLARE_DELEGATE_RetVal_NineParams(RetType, Name, P1, P2, P3, P4, P5, P6, P7, P8, P9) HOST_DECLARE_DELEGATE(Name, RetType, P1, P2, P3, P4, P5, P6, P7, P8, P9)
#define DECLARE_MULTICAST_DELEGATE_NineParams(Name, P1, P2, P3, P4, P5, P6, P7, P8, P9) HOST_DECLARE_MULTICAST_DELEGATE(Name, P1, P2, P3, P4, P5, P6, P7, P8, P9)
#define DECLARE_EVENT_NineParams(OwningType, Name, P1, P2, P3, P4, P5, P6, P7, P8, P9) HOST_DECLARE_EVENT(OwningType, Name, P1, P2, P3, P4, P5, P6, P7, P8, P9)

DECLARE_DELEGATE(FSimpleDelegate);
DECLARE_MULTICAST_DELEGATE(FSimpleMulticastDelegate);
