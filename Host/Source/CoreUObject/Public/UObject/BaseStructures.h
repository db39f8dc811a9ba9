#pragma once

#include "Math/Box2D.h"
#include "Math/Color.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/DateTime.h"
#include "Misc/Guid.h"
#include "Misc/Timespan.h"
#include "UObject/ReflectedTypeAccessors.h"
#include "UObject/ScriptStruct.h"
#include "UObject/SoftObjectPath.h"

/** A structure of the core, which carries no macros: its description stands in /Script/CoreUObject all the same. */
#define HOST_BASE_STRUCTURE(TStruct) \
	template<> \
	struct TBaseStructure<TStruct> \
	{ \
		COREUOBJECT_API static UScriptStruct* Get(); \
	}; \
	template<> \
	UScriptStruct* StaticStruct<TStruct>()

HOST_BASE_STRUCTURE(FVector2D);
HOST_BASE_STRUCTURE(FVector2f);
HOST_BASE_STRUCTURE(FVector);
HOST_BASE_STRUCTURE(FVector3f);
HOST_BASE_STRUCTURE(FVector4);
HOST_BASE_STRUCTURE(FVector4f);
HOST_BASE_STRUCTURE(FIntPoint);
HOST_BASE_STRUCTURE(FIntRect);
HOST_BASE_STRUCTURE(FBox2D);
HOST_BASE_STRUCTURE(FColor);
HOST_BASE_STRUCTURE(FLinearColor);
HOST_BASE_STRUCTURE(FGuid);
HOST_BASE_STRUCTURE(FDateTime);
HOST_BASE_STRUCTURE(FTimespan);
HOST_BASE_STRUCTURE(FSoftObjectPath);
HOST_BASE_STRUCTURE(FSoftClassPath);

#undef HOST_BASE_STRUCTURE
