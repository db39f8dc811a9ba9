#include "Math/Quat.h"

#include "Containers/UnrealString.h"
#include "Math/Rotator.h"
#include "Misc/Parse.h"

namespace UE::Math
{
	template <typename T>
	TQuat<T>::TQuat(const TRotator<T>& Rotator)
	{
		// Pitch lifts forward and roll lowers right: both turn against the axis.
		const TQuat Yaw(TVector<T>(0, 0, 1), FMath::DegreesToRadians(Rotator.Yaw));
		const TQuat Pitch(TVector<T>(0, 1, 0), -FMath::DegreesToRadians(Rotator.Pitch));
		const TQuat Roll(TVector<T>(1, 0, 0), -FMath::DegreesToRadians(Rotator.Roll));
		*this = Yaw * Pitch * Roll;
	}

	template <typename T>
	TRotator<T> TQuat<T>::Rotator() const
	{
		const TVector<T> Forward = GetAxisX();
		// Nearer to the poles than this the angles of the horizontal parts are noise.
		const T Pole = T(0.999999);
		if (FMath::Abs(Forward.Z) > Pole)
		{
			const TVector<T> Right = GetAxisY();
			return TRotator<T>(Forward.Z > T(0) ? T(90) : T(-90), FMath::RadiansToDegrees(FMath::Atan2(-Right.X, Right.Y)), T(0));
		}
		const T Pitch = FMath::Asin(Forward.Z);
		const T Yaw = FMath::Atan2(Forward.Y, Forward.X);
		const T Roll = FMath::Atan2(-GetAxisY().Z, GetAxisZ().Z);
		return TRotator<T>(FMath::RadiansToDegrees(Pitch), FMath::RadiansToDegrees(Yaw), FMath::RadiansToDegrees(Roll));
	}

	template <typename T>
	TQuat<T> TQuat<T>::Slerp(const TQuat& From, const TQuat& To, T Slerp)
	{
		const T Product = From | To;
		const T Cosine = FMath::Abs(Product);
		T FromWeight = T(1) - Slerp;
		T ToWeight = Slerp;
		// Nearly alike, the straight line is the arc.
		if (Cosine < T(0.9999))
		{
			const T Angle = FMath::Acos(Cosine);
			const T InvSine = T(1) / FMath::Sin(Angle);
			FromWeight = FMath::Sin((T(1) - Slerp) * Angle) * InvSine;
			ToWeight = FMath::Sin(Slerp * Angle) * InvSine;
		}
		return (From * FromWeight + To * (Product < T(0) ? -ToWeight : ToWeight)).GetNormalized();
	}

	template <typename T>
	TQuat<T> TQuat<T>::FindBetweenVectors(const TVector<T>& A, const TVector<T>& B)
	{
		const T Norm = FMath::Sqrt(A.SizeSquared() * B.SizeSquared());
		const T W = Norm + (A | B);
		if (W > T(1e-6) * Norm)
		{
			const TVector<T> Cross = A ^ B;
			return TQuat(Cross.X, Cross.Y, Cross.Z, W).GetNormalized();
		}
		// Opposite: half a turn around any axis across.
		return (FMath::Abs(A.X) > FMath::Abs(A.Y) ? TQuat(-A.Z, 0, A.X, 0) : TQuat(0, -A.Z, A.Y, 0)).GetNormalized();
	}

	template <typename T>
	FString TQuat<T>::ToString() const
	{
		return FString::Printf(TEXT("X=%.9f Y=%.9f Z=%.9f W=%.9f"), double(X), double(Y), double(Z), double(W));
	}

	template <typename T>
	bool TQuat<T>::InitFromString(const FString& Text)
	{
		TQuat Read;
		if (!FParse::Value(*Text, TEXT("X="), Read.X) || !FParse::Value(*Text, TEXT("Y="), Read.Y)
			|| !FParse::Value(*Text, TEXT("Z="), Read.Z) || !FParse::Value(*Text, TEXT("W="), Read.W))
		{
			return false;
		}
		*this = Read;
		return true;
	}

	template <typename T>
	FString TRotator<T>::ToString() const
	{
		return FString::Printf(TEXT("P=%f Y=%f R=%f"), double(Pitch), double(Yaw), double(Roll));
	}

	template <typename T>
	bool TRotator<T>::InitFromString(const FString& Text)
	{
		TRotator Read;
		if (!FParse::Value(*Text, TEXT("P="), Read.Pitch) || !FParse::Value(*Text, TEXT("Y="), Read.Yaw) || !FParse::Value(*Text, TEXT("R="), Read.Roll))
		{
			return false;
		}
		*this = Read;
		return true;
	}

	template struct TQuat<float>;
	template struct TQuat<double>;
	template struct TRotator<float>;
	template struct TRotator<double>;
}
