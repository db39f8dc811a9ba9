#include "Containers/UnrealString.h"
#include "Math/Box.h"
#include "Math/Box2D.h"
#include "Math/IntPoint.h"
#include "Math/IntRect.h"
#include "Math/Rotator.h"
#include "Math/Vector.h"
#include "Math/Vector2D.h"
#include "Math/Vector4.h"
#include "Misc/Parse.h"

namespace UE::Math
{
	template <typename T>
	FString TIntPoint<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%d Y=%d"), int32(X), int32(Y));
	}

	template <typename T>
	FString TIntRect<T>::ToString() const
	{
		return FString::Printf(TEXT("Min=(%s) Max=(%s)"), *Min.ToString(), *Max.ToString());
	}

	template <typename T>
	FString TVector2<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%3.3f Y=%3.3f"), double(X), double(Y));
	}

	template <typename T>
	bool TVector2<T>::InitFromString(const FString& Text)
	{
		TVector2 Read;
		if (!FParse::Value(*Text, TEXT("X="), Read.X) || !FParse::Value(*Text, TEXT("Y="), Read.Y))
		{
			return false;
		}
		*this = Read;
		return true;
	}

	template <typename T>
	FString TVector<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f"), double(X), double(Y), double(Z));
	}

	template <typename T>
	bool TVector<T>::InitFromString(const FString& Text)
	{
		TVector Read;
		if (!FParse::Value(*Text, TEXT("X="), Read.X) || !FParse::Value(*Text, TEXT("Y="), Read.Y) || !FParse::Value(*Text, TEXT("Z="), Read.Z))
		{
			return false;
		}
		*this = Read;
		return true;
	}

	template <typename T>
	FString TVector4<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%3.3f Y=%3.3f Z=%3.3f W=%3.3f"), double(X), double(Y), double(Z), double(W));
	}

	template <typename T>
	bool TVector4<T>::InitFromString(const FString& Text)
	{
		TVector4 Read(0, 0, 0, 0);
		if (!FParse::Value(*Text, TEXT("X="), Read.X) || !FParse::Value(*Text, TEXT("Y="), Read.Y) || !FParse::Value(*Text, TEXT("Z="), Read.Z))
		{
			return false;
		}
		FParse::Value(*Text, TEXT("W="), Read.W);
		*this = Read;
		return true;
	}

	template <typename T>
	FString TBox2<T>::ToString() const
	{
		return FString::Printf(TEXT("bIsValid=%s, Min=(%s), Max=(%s)"), bIsValid ? TEXT("true") : TEXT("false"), *Min.ToString(), *Max.ToString());
	}

	template <typename T>
	FString TBox<T>::ToString() const
	{
		return FString::Printf(TEXT("IsValid=%s, Min=(%s), Max=(%s)"), IsValid ? TEXT("true") : TEXT("false"), *Min.ToString(), *Max.ToString());
	}

	template struct TIntPoint<int32>;
	template struct TIntRect<int32>;
	template struct TVector2<float>;
	template struct TVector2<double>;
	template struct TVector<float>;
	template struct TVector<double>;
	template struct TVector4<float>;
	template struct TVector4<double>;
	template struct TBox2<float>;
	template struct TBox2<double>;
	template struct TBox<float>;
	template struct TBox<double>;
}
