#include "Cpu/PixelRows.h"

#include <cstring>

#include "Cpu/PixelMath.h"

#if defined(__SSE2__)
#include <emmintrin.h>
#endif

namespace Host::PixelRows
{
	namespace Plain
	{
		void BlendColour(uint32* Destination, int32 Count, uint32 Colour)
		{
			const uint32 Rest = 255 - PixelMath::Alpha(Colour);
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Destination[Index] = Colour + PixelMath::Scale(Destination[Index], Rest);
			}
		}

		void BlendMask(uint32* Destination, const uint8* Mask, int32 Count, uint32 Colour)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				if (Mask[Index] != 0)
				{
					Destination[Index] = PixelMath::Over(PixelMath::Scale(Colour, Mask[Index]), Destination[Index]);
				}
			}
		}

		void BlendPixels(uint32* Destination, const uint32* Source, int32 Count)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Destination[Index] = PixelMath::Over(Source[Index], Destination[Index]);
			}
		}

		void ScaleByMask(uint32* Pixels, const uint8* Mask, int32 Count)
		{
			for (int32 Index = 0; Index < Count; ++Index)
			{
				Pixels[Index] = PixelMath::Scale(Pixels[Index], Mask[Index]);
			}
		}
	}

	void Fill(uint32* Destination, int32 Count, uint32 Colour)
	{
		for (int32 Index = 0; Index < Count; ++Index)
		{
			Destination[Index] = Colour;
		}
	}

#if defined(__SSE2__)
	namespace
	{
		/** Four pixels, as two times eight channels of 16 bits. */
		struct FWide
		{
			__m128i Low;
			__m128i High;
		};

		FWide Widen(__m128i Pixels)
		{
			const __m128i Zero = _mm_setzero_si128();
			return { _mm_unpacklo_epi8(Pixels, Zero), _mm_unpackhi_epi8(Pixels, Zero) };
		}

		__m128i Divide(__m128i Products)
		{
			const __m128i Biased = _mm_add_epi16(Products, _mm_set1_epi16(128));
			return _mm_srli_epi16(_mm_add_epi16(Biased, _mm_srli_epi16(Biased, 8)), 8);
		}

		__m128i Multiply(const FWide& Pixels, const FWide& Shares)
		{
			return _mm_packus_epi16(Divide(_mm_mullo_epi16(Pixels.Low, Shares.Low)), Divide(_mm_mullo_epi16(Pixels.High, Shares.High)));
		}

		/** Four shares, each repeated for the four channels of its pixel. */
		FWide SpreadMask(uint32 FourShares)
		{
			const __m128i Bytes = _mm_cvtsi32_si128(static_cast<int>(FourShares));
			const __m128i Pairs = _mm_unpacklo_epi8(Bytes, Bytes);
			return Widen(_mm_unpacklo_epi16(Pairs, Pairs));
		}

		/** What each source pixel leaves of what is below: 255 less its alpha, for all four channels. */
		FWide RestOf(__m128i Source)
		{
			const __m128i Alphas = _mm_srli_epi32(Source, 24);
			const __m128i Pairs = _mm_or_si128(Alphas, _mm_slli_epi32(Alphas, 16));
			const __m128i Full = _mm_set1_epi16(255);
			return { _mm_sub_epi16(Full, _mm_unpacklo_epi32(Pairs, Pairs)), _mm_sub_epi16(Full, _mm_unpackhi_epi32(Pairs, Pairs)) };
		}

		__m128i Load(const uint32* Pixels)
		{
			return _mm_loadu_si128(reinterpret_cast<const __m128i*>(Pixels));
		}

		void Store(uint32* Pixels, __m128i Value)
		{
			_mm_storeu_si128(reinterpret_cast<__m128i*>(Pixels), Value);
		}

		__m128i Over(__m128i Source, __m128i Destination)
		{
			return _mm_add_epi8(Source, Multiply(Widen(Destination), RestOf(Source)));
		}

		uint32 LoadShares(const uint8* Mask)
		{
			uint32 Shares;
			std::memcpy(&Shares, Mask, sizeof(Shares));
			return Shares;
		}
	}

	void BlendColour(uint32* Destination, int32 Count, uint32 Colour)
	{
		const __m128i Source = _mm_set1_epi32(static_cast<int>(Colour));
		const FWide Rest = RestOf(Source);
		int32 Index = 0;
		for (; Index + 4 <= Count; Index += 4)
		{
			Store(Destination + Index, _mm_add_epi8(Source, Multiply(Widen(Load(Destination + Index)), Rest)));
		}
		Plain::BlendColour(Destination + Index, Count - Index, Colour);
	}

	void BlendMask(uint32* Destination, const uint8* Mask, int32 Count, uint32 Colour)
	{
		const __m128i Source = _mm_set1_epi32(static_cast<int>(Colour));
		const FWide WideSource = Widen(Source);
		int32 Index = 0;
		for (; Index + 4 <= Count; Index += 4)
		{
			const uint32 Shares = LoadShares(Mask + Index);
			if (Shares != 0)
			{
				Store(Destination + Index, Over(Multiply(WideSource, SpreadMask(Shares)), Load(Destination + Index)));
			}
		}
		Plain::BlendMask(Destination + Index, Mask + Index, Count - Index, Colour);
	}

	void BlendPixels(uint32* Destination, const uint32* Source, int32 Count)
	{
		int32 Index = 0;
		for (; Index + 4 <= Count; Index += 4)
		{
			Store(Destination + Index, Over(Load(Source + Index), Load(Destination + Index)));
		}
		Plain::BlendPixels(Destination + Index, Source + Index, Count - Index);
	}

	void ScaleByMask(uint32* Pixels, const uint8* Mask, int32 Count)
	{
		int32 Index = 0;
		for (; Index + 4 <= Count; Index += 4)
		{
			Store(Pixels + Index, Multiply(Widen(Load(Pixels + Index)), SpreadMask(LoadShares(Mask + Index))));
		}
		Plain::ScaleByMask(Pixels + Index, Mask + Index, Count - Index);
	}
#else
	void BlendColour(uint32* Destination, int32 Count, uint32 Colour)
	{
		Plain::BlendColour(Destination, Count, Colour);
	}

	void BlendMask(uint32* Destination, const uint8* Mask, int32 Count, uint32 Colour)
	{
		Plain::BlendMask(Destination, Mask, Count, Colour);
	}

	void BlendPixels(uint32* Destination, const uint32* Source, int32 Count)
	{
		Plain::BlendPixels(Destination, Source, Count);
	}

	void ScaleByMask(uint32* Pixels, const uint8* Mask, int32 Count)
	{
		Plain::ScaleByMask(Pixels, Mask, Count);
	}
#endif
}
