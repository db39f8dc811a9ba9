#include "CoreMinimal.h"
#include "Host/ImageCodec.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <jpeglib.h>
#include <png.h>
#include <webp/decode.h>
#include <webp/encode.h>

#include <cmath>

namespace
{
	constexpr int32 Side = 512;

	/** A picture with smooth parts, edges and some noise, as photographs have. */
	const FImage& GetPicture()
	{
		static const FImage Picture = []
		{
			FImage Image;
			Image.Init(Side, Side, ERawImageFormat::BGRA8);
			uint32 Noise = 1;
			for (int32 Place = 0; Place < Side * Side; ++Place)
			{
				Noise = Noise * 1664525u + 1013904223u;
				const int32 X = Place % Side;
				const int32 Y = Place / Side;
				const uint32 Grain = Noise >> 29;
				const uint32 Edge = (X / 64 + Y / 64) % 2 ? 40 : 0;
				Image.AsBGRA8()[Place] = FColor(static_cast<uint8>(X / 3 + Grain), static_cast<uint8>(Y / 3 + Edge), static_cast<uint8>((X + Y) / 6 + Grain + Edge));
			}
			return Image;
		}();
		return Picture;
	}

	TArray<uint8> Encode(EImageFormat Format)
	{
		if (Format == Host::WebPImageFormat)
		{
			uint8* Data = nullptr;
			const size_t Size = WebPEncodeBGRA(GetPicture().RawData.GetData(), Side, Side, Side * 4, 80.0f, &Data);
			TArray<uint8> Result(Data, static_cast<int32>(Size));
			WebPFree(Data);
			return Result;
		}
		TArray64<uint8> Data;
		FString Error;
		verify(Host::FImageCodec::Encode(Format, GetPicture(), 85, Data, Error));
		return TArray<uint8>(Data.GetData(), static_cast<int32>(Data.Num()));
	}

	void CountPixels(benchmark::State& State)
	{
		State.SetItemsProcessed(State.iterations() * Side * Side);
	}

	void Decode(benchmark::State& State, EImageFormat Format)
	{
		const TArray<uint8> Data = Encode(Format);
		for (auto _ : State)
		{
			FImage Image;
			FString Error;
			verify(Host::FImageCodec::Decode(Data, Image, Error));
			benchmark::DoNotOptimize(Image.RawData.GetData());
		}
		CountPixels(State);
	}

	void DecodePng(benchmark::State& State) { Decode(State, EImageFormat::PNG); }
	void DecodeJpeg(benchmark::State& State) { Decode(State, EImageFormat::JPEG); }
	void DecodeWebP(benchmark::State& State) { Decode(State, Host::WebPImageFormat); }

	void DecodePngByItself(benchmark::State& State)
	{
		const TArray<uint8> Data = Encode(EImageFormat::PNG);
		for (auto _ : State)
		{
			png_image Image = {};
			Image.version = PNG_IMAGE_VERSION;
			png_image_begin_read_from_memory(&Image, Data.GetData(), static_cast<size_t>(Data.Num()));
			Image.format = PNG_FORMAT_BGRA;
			TArray<uint8> Pixels;
			Pixels.SetNumUninitialized(static_cast<int32>(PNG_IMAGE_SIZE(Image)));
			png_image_finish_read(&Image, nullptr, Pixels.GetData(), 0, nullptr);
			benchmark::DoNotOptimize(Pixels.GetData());
		}
		CountPixels(State);
	}

	void DecodeJpegByItself(benchmark::State& State)
	{
		const TArray<uint8> Data = Encode(EImageFormat::JPEG);
		for (auto _ : State)
		{
			jpeg_decompress_struct Reader = {};
			jpeg_error_mgr Errors = {};
			Reader.err = jpeg_std_error(&Errors);
			jpeg_create_decompress(&Reader);
			jpeg_mem_src(&Reader, Data.GetData(), static_cast<unsigned long>(Data.Num()));
			jpeg_read_header(&Reader, TRUE);
			Reader.out_color_space = JCS_EXT_BGRA;
			jpeg_start_decompress(&Reader);
			TArray<uint8> Pixels;
			Pixels.SetNumUninitialized(Side * Side * 4);
			while (Reader.output_scanline < Reader.output_height)
			{
				uint8* Row = Pixels.GetData() + static_cast<int64>(Reader.output_scanline) * Side * 4;
				jpeg_read_scanlines(&Reader, &Row, 1);
			}
			jpeg_finish_decompress(&Reader);
			jpeg_destroy_decompress(&Reader);
			benchmark::DoNotOptimize(Pixels.GetData());
		}
		CountPixels(State);
	}

	void DecodeWebPByItself(benchmark::State& State)
	{
		const TArray<uint8> Data = Encode(Host::WebPImageFormat);
		for (auto _ : State)
		{
			TArray<uint8> Pixels;
			Pixels.SetNumUninitialized(Side * Side * 4);
			WebPDecodeBGRAInto(Data.GetData(), static_cast<size_t>(Data.Num()), Pixels.GetData(), static_cast<size_t>(Pixels.Num()), Side * 4);
			benchmark::DoNotOptimize(Pixels.GetData());
		}
		CountPixels(State);
	}

	BENCHMARK(DecodePng)->Unit(benchmark::kMillisecond);
	BENCHMARK(DecodePngByItself)->Unit(benchmark::kMillisecond);
	BENCHMARK(DecodeJpeg)->Unit(benchmark::kMillisecond);
	BENCHMARK(DecodeJpegByItself)->Unit(benchmark::kMillisecond);
	BENCHMARK(DecodeWebP)->Unit(benchmark::kMillisecond);
	BENCHMARK(DecodeWebPByItself)->Unit(benchmark::kMillisecond);
}
