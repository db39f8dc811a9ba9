#pragma once

#include "HAL/Platform.h"

/** The mathematical types by name, for headers that only mention them. The unmarked names are of double precision. */
namespace UE::Math
{
	template <typename T> struct TVector2;
	template <typename T> struct TVector;
	template <typename T> struct TVector4;
	template <typename T> struct TBox2;
	template <typename T> struct TIntPoint;
	template <typename T> struct TIntRect;
	template <typename T> struct TRotator;
	template <typename T> struct TQuat;
	template <typename T> struct TMatrix;
	template <typename T> struct TTransform;
	template <typename T> struct TPlane;
	template <typename T> struct TBox;
}

using FVector2D = UE::Math::TVector2<double>;
using FVector2d = UE::Math::TVector2<double>;
using FVector2f = UE::Math::TVector2<float>;
using FVector = UE::Math::TVector<double>;
using FVector3d = UE::Math::TVector<double>;
using FVector3f = UE::Math::TVector<float>;
using FVector4 = UE::Math::TVector4<double>;
using FVector4d = UE::Math::TVector4<double>;
using FVector4f = UE::Math::TVector4<float>;
using FBox2D = UE::Math::TBox2<double>;
using FBox2d = UE::Math::TBox2<double>;
using FBox2f = UE::Math::TBox2<float>;
using FIntPoint = UE::Math::TIntPoint<int32>;
using FIntRect = UE::Math::TIntRect<int32>;
using FRotator = UE::Math::TRotator<double>;
using FRotator3f = UE::Math::TRotator<float>;
using FQuat = UE::Math::TQuat<double>;
using FQuat4f = UE::Math::TQuat<float>;
using FMatrix = UE::Math::TMatrix<double>;
using FMatrix44f = UE::Math::TMatrix<float>;
using FTransform = UE::Math::TTransform<double>;
using FTransform3f = UE::Math::TTransform<float>;
using FPlane = UE::Math::TPlane<double>;
using FPlane4f = UE::Math::TPlane<float>;
using FBox = UE::Math::TBox<double>;
using FBox3f = UE::Math::TBox<float>;

struct FColor;
struct FLinearColor;
