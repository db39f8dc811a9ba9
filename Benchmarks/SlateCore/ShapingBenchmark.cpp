#include "Fonts/CompositeFont.h"
#include "Fonts/SlateFontInfo.h"
#include "Host/FontServices.h"
#include "Host/TextLayout.h"

#include <benchmark/benchmark.h>
#include <harfbuzz/hb-ot.h>
#include <harfbuzz/hb.h>

// What it costs to shape the names of a large project, beside HarfBuzz alone doing the same.

namespace
{
	constexpr int32 NumNames = 100000;
	constexpr const char* FontFile = HALVEX_SOURCE_DIR "/HalvexPro/Content/Widgets/Fonts/Monserrat/Montserrat-Regular.ttf";

	const TArray<FString>& GetNames()
	{
		static const TArray<FString> Names = []
		{
			TArray<FString> Result;
			Result.Reserve(NumNames);
			for (int32 Index = 0; Index < NumNames; ++Index)
			{
				Result.Add(FString::Printf(TEXT("Unit A%05d"), Index));
			}
			return Result;
		}();
		return Names;
	}

	Host::FSizedFontRef GetFont(Host::FFontServices& Services)
	{
		static const TSharedRef<FCompositeFont> Font = MakeShared<FCompositeFont>(TEXT("regular"), FString(UTF8_TO_TCHAR(FontFile)),
			EFontHinting::Default, EFontLoadingPolicy::LazyLoad);
		return Services.GetFont(FSlateFontInfo(Font, 12.0f), 1.0f);
	}

	/** Enough for every name, so that eviction is not what is measured. */
	void MakeCacheLarge(Host::FFontServices& Services)
	{
		Services.SetRunCacheLimit(SIZE_T(256) << 20);
	}
}

static void ShapeNamesWithHarfBuzzItself(benchmark::State& State)
{
	const TArray<FString>& Names = GetNames();
	hb_blob_t* Blob = hb_blob_create_from_file(FontFile);
	hb_face_t* Face = hb_face_create(Blob, 0);
	hb_font_t* Font = hb_font_create(Face);
	hb_font_set_scale(Font, 16 * 64, 16 * 64);
	hb_buffer_t* Buffer = hb_buffer_create();
	for (auto _ : State)
	{
		int64 Width = 0;
		for (const FString& Name : Names)
		{
			hb_buffer_clear_contents(Buffer);
			hb_buffer_add_utf16(Buffer, reinterpret_cast<const uint16_t*>(*Name), Name.Len(), 0, Name.Len());
			hb_buffer_guess_segment_properties(Buffer);
			hb_shape(Font, Buffer, nullptr, 0);
			unsigned int Count = 0;
			const hb_glyph_position_t* Positions = hb_buffer_get_glyph_positions(Buffer, &Count);
			for (unsigned int Index = 0; Index < Count; ++Index)
			{
				Width += Positions[Index].x_advance;
			}
		}
		benchmark::DoNotOptimize(Width);
	}
	hb_buffer_destroy(Buffer);
	hb_font_destroy(Font);
	hb_face_destroy(Face);
	hb_blob_destroy(Blob);
	State.SetItemsProcessed(State.iterations() * NumNames);
}
BENCHMARK(ShapeNamesWithHarfBuzzItself)->Unit(benchmark::kMillisecond);

static void ShapeNamesCold(benchmark::State& State)
{
	const TArray<FString>& Names = GetNames();
	for (auto _ : State)
	{
		State.PauseTiming();
		TUniquePtr<Host::FFontServices> Services = MakeUnique<Host::FFontServices>();
		MakeCacheLarge(*Services);
		const Host::FSizedFontRef Font = GetFont(*Services);
		State.ResumeTiming();
		float Width = 0.0f;
		for (const FString& Name : Names)
		{
			Width += Services->Shape(Font, Name)->GetWidth();
		}
		benchmark::DoNotOptimize(Width);
		State.PauseTiming();
		State.counters["bytes_per_run"] = static_cast<double>(Services->GetCounts().CachedBytes) / NumNames;
		Services.Reset();
		State.ResumeTiming();
	}
	State.SetItemsProcessed(State.iterations() * NumNames);
}
BENCHMARK(ShapeNamesCold)->Unit(benchmark::kMillisecond);

static void ShapeNamesWarm(benchmark::State& State)
{
	const TArray<FString>& Names = GetNames();
	Host::FFontServices Services;
	MakeCacheLarge(Services);
	const Host::FSizedFontRef Font = GetFont(Services);
	for (const FString& Name : Names)
	{
		Services.Shape(Font, Name);
	}
	for (auto _ : State)
	{
		float Width = 0.0f;
		for (const FString& Name : Names)
		{
			Width += Services.Shape(Font, Name)->GetWidth();
		}
		benchmark::DoNotOptimize(Width);
	}
	State.SetItemsProcessed(State.iterations() * NumNames);
}
BENCHMARK(ShapeNamesWarm)->Unit(benchmark::kMillisecond);

static void ShapeOneChangedText(benchmark::State& State)
{
	Host::FFontServices Services;
	const Host::FSizedFontRef Font = GetFont(Services);
	int32 Number = 0;
	for (auto _ : State)
	{
		State.PauseTiming();
		const FString Text = FString::Printf(TEXT("%d of 10000"), ++Number);
		State.ResumeTiming();
		benchmark::DoNotOptimize(Services.Shape(Font, Text)->GetWidth());
	}
}
BENCHMARK(ShapeOneChangedText);

static void WrapAParagraphAtManyWidths(benchmark::State& State)
{
	FString Text;
	for (int32 Index = 0; Index < 200; ++Index)
	{
		Text += TEXT("Rooms with a view over the park and the river, ");
	}
	Host::FFontServices& Services = Host::FFontServices::Get();
	Host::FTextLayout Layout;
	Host::FTextLayoutStyle Style;
	Style.Font = GetFont(Services);
	Layout.SetText(Text);
	float Width = 200.0f;
	for (auto _ : State)
	{
		Width = Width < 600.0f ? Width + 1.0f : 200.0f;
		Style.WrapWidth = Width;
		Layout.SetStyle(Style);
		benchmark::DoNotOptimize(Layout.GetSize());
	}
}
BENCHMARK(WrapAParagraphAtManyWidths)->Unit(benchmark::kMicrosecond);

static void FindGlyphsInTheAtlas(benchmark::State& State)
{
	Host::FFontServices Services;
	const Host::FSizedFontRef Font = GetFont(Services);
	const Host::FShapedRunRef Run = Services.Shape(Font, TEXT("The quick brown fox jumps over the lazy dog"));
	for (auto _ : State)
	{
		for (const Host::FShapedGlyph& Glyph : Run->GetGlyphs())
		{
			float Scale;
			benchmark::DoNotOptimize(Services.GetAtlas().Find(Font->MakeKey(Glyph, Host::EGlyphPart::Fill, 1.0f, 0, true, Scale)));
		}
	}
	State.SetItemsProcessed(State.iterations() * Run->GetGlyphs().Num());
}
BENCHMARK(FindGlyphsInTheAtlas);

static void RasteriseGlyphs(benchmark::State& State)
{
	for (auto _ : State)
	{
		State.PauseTiming();
		Host::FFontServices Services;
		const Host::FSizedFontRef Font = GetFont(Services);
		const Host::FShapedRunRef Run = Services.Shape(Font, TEXT("ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz"));
		State.ResumeTiming();
		for (const Host::FShapedGlyph& Glyph : Run->GetGlyphs())
		{
			float Scale;
			benchmark::DoNotOptimize(Services.GetAtlas().Find(Font->MakeKey(Glyph, Host::EGlyphPart::Fill, 1.0f, 0, true, Scale)));
		}
	}
	State.SetItemsProcessed(State.iterations() * 52);
}
BENCHMARK(RasteriseGlyphs)->Unit(benchmark::kMicrosecond);
