#include "Host/FontServices.h"

#include "Fonts/SlateFontInfo.h"
#include "Host/FontFaces.h"
#include "Host/FontTable.h"
#include "Host/RunCache.h"
#include "Host/SlateCounters.h"
#include "Host/TextShaper.h"

namespace Host
{
	static TUniquePtr<FFontServices> TheFontServices;

	FFontServices& FFontServices::Get()
	{
		if (!TheFontServices)
		{
			TheFontServices = MakeUnique<FFontServices>();
		}
		return *TheFontServices;
	}

	void FFontServices::Shutdown()
	{
		TheFontServices.Reset();
	}

	FFontServices::FFontServices()
		: Faces(MakeUnique<FFontFaces>())
		, Atlas(MakeUnique<FGlyphAtlas>(*Faces))
		, Shaper(MakeUnique<FTextShaper>())
		, Fonts(MakeUnique<FFontTable>(*Faces))
		, Runs(MakeUnique<FRunCache>())
	{
	}

	FFontServices::~FFontServices() = default;

	/** A number of pixels in 1/64 pixel, within bounds; what is no number comes out as the lower bound. */
	static int32 ToSubpixels(float Pixels, int32 Min, int32 Max)
	{
		const float Value = Pixels * 64.0f;
		return Value > static_cast<float>(Min) ? static_cast<int32>(FMath::Min(Value, static_cast<float>(Max)) + 0.5f) : Min;
	}

	FSizedFontRef FFontServices::GetFont(const FSlateFontInfo& Info, float Scale)
	{
		constexpr float PixelsPerPoint = 96.0f / 72.0f;
		constexpr int32 MaxSize = 4096 * 64;
		constexpr float MaxSkew = 5.0f;
		const FCompositeFont* Font = Info.GetCompositeFont();
		if (!Font)
		{
			Font = DefaultFont.Get();
		}
		FFontRequest Request;
		Request.Revision = Font ? Font->GetHistoryRevision() : 0;
		Request.Typeface = Font ? Info.TypefaceFontName : NAME_None;
		Request.Fallback = Info.FontFallback;
		Request.Size = ToSubpixels(Info.GetClampSize() * PixelsPerPoint * Scale, 1, MaxSize);
		Request.LetterSpacing = FMath::Clamp(Info.LetterSpacing, -1000, 10000);
		Request.Skew = static_cast<int16>(FMath::RoundToInt32(FMath::Clamp(Info.SkewAmount, -MaxSkew, MaxSkew) * 4096.0f));
		Request.Outline = static_cast<uint16>(ToSubpixels(static_cast<float>(Info.OutlineSettings.OutlineSize) * Scale, 0, MAX_uint16));
		Request.bHollowOutline = Request.Outline != 0 && Info.OutlineSettings.bSeparateFillAlpha;
		return Fonts->FindOrMake(Request, Font);
	}

	FShapedRunRef FFontServices::Shape(const FSizedFontRef& Font, FStringView Text)
	{
		uint32 Hash;
		if (const FShapedRunPtr* Known = Runs->Find(Font->GetId(), Text, Hash))
		{
			return Known->ToSharedRef();
		}
		const FShapedRunRef Run = ShapeUncached(Font, Text);
		Runs->Add(Hash, Run);
		return Run;
	}

	FShapedRunRef FFontServices::ShapeUncached(const FSizedFontRef& Font, FStringView Text)
	{
		++RunsShaped;
		++FSlateCounters::Get().ShapedRuns;
		return Shaper->ShapeLine(Font, Text);
	}

	void FFontServices::SetDefaultFont(TSharedPtr<const FCompositeFont> Font)
	{
		DefaultFont = MoveTemp(Font);
		++Generation;
	}

	void FFontServices::Flush()
	{
		Runs->Empty();
		Fonts->Empty();
		Faces->Flush();
		++Generation;
	}

	void FFontServices::SetRunCacheLimit(SIZE_T Bytes)
	{
		Runs->SetLimit(Bytes);
	}

	FFontServiceCounts FFontServices::GetCounts() const
	{
		FFontServiceCounts Counts;
		Counts.Faces = Faces->Num();
		Counts.CachedRuns = Runs->Num();
		Counts.CachedBytes = Runs->GetSize();
		Counts.RunsShaped = RunsShaped;
		return Counts;
	}
}
