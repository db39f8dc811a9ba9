#include "Math/Matrix.h"

namespace UE::Math
{
	namespace
	{
		/** Determinants of two rows, for each two of the columns: what larger determinants are made of. */
		template <typename T>
		struct TRowPair
		{
			T C01, C02, C03, C12, C13, C23;

			TRowPair(const T (&A)[4], const T (&B)[4])
				: C01(A[0] * B[1] - A[1] * B[0])
				, C02(A[0] * B[2] - A[2] * B[0])
				, C03(A[0] * B[3] - A[3] * B[0])
				, C12(A[1] * B[2] - A[2] * B[1])
				, C13(A[1] * B[3] - A[3] * B[1])
				, C23(A[2] * B[3] - A[3] * B[2])
			{
			}

			T Join(const TRowPair& Other) const
			{
				return C01 * Other.C23 - C02 * Other.C13 + C03 * Other.C12 + C12 * Other.C03 - C13 * Other.C02 + C23 * Other.C01;
			}
		};
	}

	template <typename T>
	T TMatrix<T>::Determinant() const
	{
		return TRowPair<T>(M[0], M[1]).Join(TRowPair<T>(M[2], M[3]));
	}

	template <typename T>
	TMatrix<T> TMatrix<T>::Inverse() const
	{
		const TRowPair<T> Upper(M[0], M[1]);
		const TRowPair<T> Lower(M[2], M[3]);
		const T Determinant = Upper.Join(Lower);
		if (Determinant == T(0) || !FMath::IsFinite(Determinant))
		{
			return Identity;
		}
		const T Factor = T(1) / Determinant;
		const TMatrix Adjugate(
			TVector4<T>(
				M[1][1] * Lower.C23 - M[1][2] * Lower.C13 + M[1][3] * Lower.C12,
				-M[0][1] * Lower.C23 + M[0][2] * Lower.C13 - M[0][3] * Lower.C12,
				M[3][1] * Upper.C23 - M[3][2] * Upper.C13 + M[3][3] * Upper.C12,
				-M[2][1] * Upper.C23 + M[2][2] * Upper.C13 - M[2][3] * Upper.C12),
			TVector4<T>(
				-M[1][0] * Lower.C23 + M[1][2] * Lower.C03 - M[1][3] * Lower.C02,
				M[0][0] * Lower.C23 - M[0][2] * Lower.C03 + M[0][3] * Lower.C02,
				-M[3][0] * Upper.C23 + M[3][2] * Upper.C03 - M[3][3] * Upper.C02,
				M[2][0] * Upper.C23 - M[2][2] * Upper.C03 + M[2][3] * Upper.C02),
			TVector4<T>(
				M[1][0] * Lower.C13 - M[1][1] * Lower.C03 + M[1][3] * Lower.C01,
				-M[0][0] * Lower.C13 + M[0][1] * Lower.C03 - M[0][3] * Lower.C01,
				M[3][0] * Upper.C13 - M[3][1] * Upper.C03 + M[3][3] * Upper.C01,
				-M[2][0] * Upper.C13 + M[2][1] * Upper.C03 - M[2][3] * Upper.C01),
			TVector4<T>(
				-M[1][0] * Lower.C12 + M[1][1] * Lower.C02 - M[1][2] * Lower.C01,
				M[0][0] * Lower.C12 - M[0][1] * Lower.C02 + M[0][2] * Lower.C01,
				-M[3][0] * Upper.C12 + M[3][1] * Upper.C02 - M[3][2] * Upper.C01,
				M[2][0] * Upper.C12 - M[2][1] * Upper.C02 + M[2][2] * Upper.C01));
		TMatrix Result = Adjugate;
		for (auto& Row : Result.M)
		{
			for (T& Element : Row)
			{
				Element *= Factor;
			}
		}
		return Result;
	}

	template <typename T>
	TQuat<T> TMatrix<T>::ToQuat() const
	{
		const TVector<T> X = GetUnitAxis(EAxis::X);
		const TVector<T> Y = GetUnitAxis(EAxis::Y);
		const TVector<T> Z = GetUnitAxis(EAxis::Z);
		// Of the four components the greatest is found first, so that nothing is divided by what is nearly zero.
		const T FourWW = T(1) + X.X + Y.Y + Z.Z;
		const T FourXX = T(1) + X.X - Y.Y - Z.Z;
		const T FourYY = T(1) - X.X + Y.Y - Z.Z;
		const T FourZZ = T(1) - X.X - Y.Y + Z.Z;
		TQuat<T> Result;
		if (FourWW >= FourXX && FourWW >= FourYY && FourWW >= FourZZ)
		{
			Result = TQuat<T>(Y.Z - Z.Y, Z.X - X.Z, X.Y - Y.X, FourWW);
		}
		else if (FourXX >= FourYY && FourXX >= FourZZ)
		{
			Result = TQuat<T>(FourXX, X.Y + Y.X, Z.X + X.Z, Y.Z - Z.Y);
		}
		else if (FourYY >= FourZZ)
		{
			Result = TQuat<T>(X.Y + Y.X, FourYY, Y.Z + Z.Y, Z.X - X.Z);
		}
		else
		{
			Result = TQuat<T>(Z.X + X.Z, Y.Z + Z.Y, FourZZ, X.Y - Y.X);
		}
		return Result.GetNormalized();
	}

	template struct TMatrix<float>;
	template struct TMatrix<double>;
}
