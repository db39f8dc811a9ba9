#include "Codecs.h"

#include <csetjmp>
#include <cstdio>
#include <cstdlib>

#include <jpeglib.h>
#include <jerror.h>

#include "Host/ImageCodec.h"

namespace Host::Codecs
{
	namespace
	{
		constexpr int32 DefaultQuality = 85;

		/**
		 * Where the library jumps to on an error, and what it said. The functions that set the jump hold only plain data, because
		 * the jump runs no destructors.
		 */
		struct FJpegErrors
		{
			jpeg_error_mgr Manager;
			std::jmp_buf Jump;
			char Message[JMSG_LENGTH_MAX];

			jpeg_error_mgr* Install()
			{
				jpeg_std_error(&Manager);
				Manager.error_exit = [](j_common_ptr Info)
				{
					FJpegErrors* Errors = reinterpret_cast<FJpegErrors*>(Info->err);
					Info->err->format_message(Info, Errors->Message);
					std::longjmp(Errors->Jump, 1);
				};
				Manager.emit_message = [](j_common_ptr Info, int Level)
				{
					// The library goes on after damage, with grey for what is missing; such a picture is refused instead.
					const bool bDamage = Level < 0 && Info->err->msg_code != JWRN_EXTRANEOUS_DATA && Info->err->msg_code != JWRN_ADOBE_XFORM
						&& Info->err->msg_code != JWRN_JFIF_MAJOR;
					if (bDamage)
					{
						Info->err->error_exit(Info);
					}
				};
				Manager.output_message = [](j_common_ptr) {};
				return &Manager;
			}
		};

		struct FJpegReader
		{
			jpeg_decompress_struct Info;
			FJpegErrors Errors;
			jpeg_progress_mgr Progress;
		};

		/** After an error inside, what it was. */
		bool Fail(const FJpegErrors& Errors, FString& OutError)
		{
			OutError = FString::Printf(TEXT("JPEG: %s"), *FString(UTF8_TO_TCHAR(Errors.Message)));
			return false;
		}

		bool ReadHeader(FJpegReader& Reader, const uint8* Data, int32 Size)
		{
			if (setjmp(Reader.Errors.Jump))
			{
				return false;
			}
			jpeg_create_decompress(&Reader.Info);
			jpeg_mem_src(&Reader.Info, Data, static_cast<unsigned long>(Size));
			jpeg_read_header(&Reader.Info, TRUE);
			return true;
		}

		bool ReadRows(FJpegReader& Reader, uint8* Pixels)
		{
			if (setjmp(Reader.Errors.Jump))
			{
				return false;
			}
			jpeg_decompress_struct& Info = Reader.Info;
			const bool bFourInks = Info.jpeg_color_space == JCS_CMYK || Info.jpeg_color_space == JCS_YCCK;
			Info.out_color_space = bFourInks ? JCS_CMYK : JCS_EXT_BGRA;
			Reader.Progress.progress_monitor = [](j_common_ptr Common)
			{
				if (reinterpret_cast<j_decompress_ptr>(Common)->input_scan_number > FImageLimits::MaxScans)
				{
					ERREXIT(Common, JERR_INPUT_EOF);
				}
			};
			Info.progress = &Reader.Progress;
			jpeg_start_decompress(&Info);
			while (Info.output_scanline < Info.output_height)
			{
				JSAMPROW Row = Pixels + static_cast<size_t>(Info.output_scanline) * Info.output_width * 4;
				jpeg_read_scanlines(&Info, &Row, 1);
			}
			jpeg_finish_decompress(&Info);
			return true;
		}

		/** Cyan, magenta, yellow and black, stored inverted as image programs do, to colours. */
		void ConvertInks(TArrayView<FColor> Pixels)
		{
			for (FColor& Pixel : Pixels)
			{
				uint8 Inks[4];
				FMemory::Memcpy(Inks, &Pixel, sizeof(Inks));
				const uint32 Black = Inks[3];
				Pixel = FColor(static_cast<uint8>(Inks[0] * Black / 255), static_cast<uint8>(Inks[1] * Black / 255), static_cast<uint8>(Inks[2] * Black / 255), 255);
			}
		}

		bool IsInks(const jpeg_decompress_struct& Info)
		{
			return Info.out_color_space == JCS_CMYK;
		}

		/** Opens the data, checks its size, and hands it to the function while it is open. */
		template <typename FunctionType>
		bool WithJpeg(TConstArrayView<uint8> Data, FString& OutError, FunctionType&& Function)
		{
			FJpegReader Reader;
			FMemory::Memzero(&Reader, sizeof(Reader));
			Reader.Info.err = Reader.Errors.Install();
			bool bDone = ReadHeader(Reader, Data.GetData(), Data.Num());
			if (!bDone)
			{
				Fail(Reader.Errors, OutError);
			}
			else
			{
				bDone = FImageLimits::Accept(Reader.Info.image_width, Reader.Info.image_height, OutError) && Function(Reader);
			}
			jpeg_destroy_decompress(&Reader.Info);
			return bDone;
		}
	}

	bool ReadJpegSize(TConstArrayView<uint8> Data, FIntPoint& OutSize, FString& OutError)
	{
		return WithJpeg(Data, OutError, [&OutSize](FJpegReader& Reader)
		{
			OutSize = FIntPoint(static_cast<int32>(Reader.Info.image_width), static_cast<int32>(Reader.Info.image_height));
			return true;
		});
	}

	bool ReadJpeg(TConstArrayView<uint8> Data, FImage& OutImage, FString& OutError)
	{
		return WithJpeg(Data, OutError, [&OutImage, &OutError](FJpegReader& Reader)
		{
			OutImage.Init(static_cast<int32>(Reader.Info.image_width), static_cast<int32>(Reader.Info.image_height), ERawImageFormat::BGRA8);
			if (!ReadRows(Reader, OutImage.RawData.GetData()))
			{
				return Fail(Reader.Errors, OutError);
			}
			if (IsInks(Reader.Info))
			{
				ConvertInks(OutImage.AsBGRA8());
			}
			return true;
		});
	}

	namespace
	{
		struct FJpegWriter
		{
			jpeg_compress_struct Info;
			FJpegErrors Errors;
			unsigned char* Output;
			unsigned long OutputSize;
		};

		bool WriteRows(FJpegWriter& Writer, const uint8* Pixels, int32 Width, int32 Height, int32 Quality)
		{
			if (setjmp(Writer.Errors.Jump))
			{
				return false;
			}
			jpeg_compress_struct& Info = Writer.Info;
			jpeg_create_compress(&Info);
			jpeg_mem_dest(&Info, &Writer.Output, &Writer.OutputSize);
			Info.image_width = static_cast<JDIMENSION>(Width);
			Info.image_height = static_cast<JDIMENSION>(Height);
			Info.input_components = 4;
			Info.in_color_space = JCS_EXT_BGRX;
			jpeg_set_defaults(&Info);
			jpeg_set_quality(&Info, Quality, TRUE);
			jpeg_start_compress(&Info, TRUE);
			while (Info.next_scanline < Info.image_height)
			{
				JSAMPROW Row = const_cast<JSAMPROW>(Pixels) + static_cast<size_t>(Info.next_scanline) * Width * 4;
				jpeg_write_scanlines(&Info, &Row, 1);
			}
			jpeg_finish_compress(&Info);
			return true;
		}
	}

	bool WriteJpeg(const FImageView& Image, int32 Quality, TArray64<uint8>& OutData, FString& OutError)
	{
		FJpegWriter Writer;
		FMemory::Memzero(&Writer, sizeof(Writer));
		Writer.Info.err = Writer.Errors.Install();
		const int32 UsedQuality = Quality > 0 ? FMath::Min(Quality, 100) : DefaultQuality;
		const bool bDone = WriteRows(Writer, static_cast<const uint8*>(Image.RawData), Image.SizeX, Image.SizeY, UsedQuality);
		if (bDone)
		{
			OutData.Reset();
			OutData.Append(Writer.Output, static_cast<int64>(Writer.OutputSize));
		}
		else
		{
			Fail(Writer.Errors, OutError);
		}
		jpeg_destroy_compress(&Writer.Info);
		std::free(Writer.Output);
		return bDone;
	}
}
