#include "Host/FontFace.h"

#include FT_TRUETYPE_TABLES_H

#include <hb-ot.h>

namespace Host
{
	namespace
	{
		/** HarfBuzz positions are sixteen times finer than FreeType's 1/64 pixel. */
		constexpr int32 ShapingScale = 16;

		/** What HarfBuzz's callbacks get to know. */
		struct FShapingFontData
		{
			const FFontFace* Face;
			/** Positions for a unit of the em, in 16.16. */
			int64 UnitScale;

			hb_position_t Scale(int32 Units) const
			{
				return static_cast<hb_position_t>((Units * UnitScale + 0x8000) >> 16);
			}
		};

		hb_bool_t GetNominalGlyph(hb_font_t*, void* FontData, hb_codepoint_t Character, hb_codepoint_t* OutGlyph, void*)
		{
			*OutGlyph = static_cast<const FShapingFontData*>(FontData)->Face->FindGlyph(Character);
			return *OutGlyph != 0;
		}

		template <typename T>
		T* Advance(T* Pointer, unsigned int Stride)
		{
			using FByte = std::conditional_t<std::is_const_v<T>, const uint8, uint8>;
			return reinterpret_cast<T*>(reinterpret_cast<FByte*>(Pointer) + Stride);
		}

		unsigned int GetNominalGlyphs(hb_font_t*, void* FontData, unsigned int Count, const hb_codepoint_t* Character, unsigned int CharacterStride,
			hb_codepoint_t* OutGlyph, unsigned int GlyphStride, void*)
		{
			const FFontFace& Face = *static_cast<const FShapingFontData*>(FontData)->Face;
			for (unsigned int Index = 0; Index < Count; ++Index)
			{
				const uint16 Glyph = Face.FindGlyph(*Character);
				if (Glyph == 0)
				{
					return Index;
				}
				*OutGlyph = Glyph;
				Character = Advance(Character, CharacterStride);
				OutGlyph = Advance(OutGlyph, GlyphStride);
			}
			return Count;
		}

		hb_position_t GetGlyphAdvance(hb_font_t*, void* FontData, hb_codepoint_t Glyph, void*)
		{
			const FShapingFontData& Data = *static_cast<const FShapingFontData*>(FontData);
			return Data.Scale(Data.Face->GetAdvance(Glyph));
		}

		void GetGlyphAdvances(hb_font_t*, void* FontData, unsigned int Count, const hb_codepoint_t* Glyph, unsigned int GlyphStride,
			hb_position_t* OutAdvance, unsigned int AdvanceStride, void*)
		{
			const FShapingFontData& Data = *static_cast<const FShapingFontData*>(FontData);
			for (unsigned int Index = 0; Index < Count; ++Index)
			{
				*OutAdvance = Data.Scale(Data.Face->GetAdvance(*Glyph));
				Glyph = Advance(Glyph, GlyphStride);
				OutAdvance = Advance(OutAdvance, AdvanceStride);
			}
		}

		/** What is not set here comes from the root font, which reads the face's tables. */
		hb_font_funcs_t* MakeFontFuncs()
		{
			hb_font_funcs_t* Funcs = hb_font_funcs_create();
			hb_font_funcs_set_nominal_glyph_func(Funcs, &GetNominalGlyph, nullptr, nullptr);
			hb_font_funcs_set_nominal_glyphs_func(Funcs, &GetNominalGlyphs, nullptr, nullptr);
			hb_font_funcs_set_glyph_h_advance_func(Funcs, &GetGlyphAdvance, nullptr, nullptr);
			hb_font_funcs_set_glyph_h_advances_func(Funcs, &GetGlyphAdvances, nullptr, nullptr);
			hb_font_funcs_make_immutable(Funcs);
			return Funcs;
		}

		/** Gives HarfBuzz a table of a face as FreeType sees it, unpacked. */
		hb_blob_t* ReadTable(hb_face_t*, hb_tag_t Tag, void* FreeTypeFace)
		{
			FT_Face Face = static_cast<FT_Face>(FreeTypeFace);
			// With tag 0 FreeType would give the file itself.
			FT_ULong Length = 0;
			if (Tag == 0 || FT_Load_Sfnt_Table(Face, Tag, 0, nullptr, &Length) != 0 || Length > static_cast<FT_ULong>(FFontFace::MaxFileSize))
			{
				return nullptr;
			}
			char* Bytes = static_cast<char*>(FMemory::Malloc(FMath::Max<SIZE_T>(Length, 1)));
			if (FT_Load_Sfnt_Table(Face, Tag, 0, reinterpret_cast<FT_Byte*>(Bytes), &Length) != 0)
			{
				FMemory::Free(Bytes);
				return nullptr;
			}
			return hb_blob_create(Bytes, static_cast<unsigned int>(Length), HB_MEMORY_MODE_WRITABLE, Bytes, [](void* Block) { FMemory::Free(Block); });
		}
	}

	void FFontFace::MakeShapingFace()
	{
		if (Data.IsEmpty() || IsPacked(Data))
		{
			ShapingFace = hb_face_create_for_tables(&ReadTable, Face, nullptr);
		}
		else
		{
			hb_blob_t* Blob = hb_blob_create(reinterpret_cast<const char*>(Data.GetData()), static_cast<unsigned int>(Data.Num()), HB_MEMORY_MODE_READONLY, nullptr, nullptr);
			ShapingFace = hb_face_create(Blob, static_cast<unsigned int>(Face->face_index & 0xFFFF));
			hb_blob_destroy(Blob);
		}
		hb_face_set_upem(ShapingFace, static_cast<unsigned int>(Metrics.UnitsPerEm));
		hb_face_set_glyph_count(ShapingFace, static_cast<unsigned int>(Advances.Num()));
		hb_face_make_immutable(ShapingFace);
		RootFont = hb_font_create(ShapingFace);
		hb_ot_font_set_funcs(RootFont);
		hb_font_make_immutable(RootFont);
	}

	hb_font_t* FFontFace::MakeShapingFont(int32 Size) const
	{
		static hb_font_funcs_t* const Funcs = MakeFontFuncs();
		hb_font_t* Font = hb_font_create_sub_font(RootFont);
		const int32 Scale = Size * ShapingScale;
		hb_font_set_scale(Font, Scale, Scale);
		FShapingFontData* FontData = new FShapingFontData{ this, (int64(Scale) << 16) / Metrics.UnitsPerEm };
		hb_font_set_funcs(Font, Funcs, FontData, [](void* Block) { delete static_cast<FShapingFontData*>(Block); });
		hb_font_make_immutable(Font);
		return Font;
	}

	hb_shape_plan_t* FFontFace::GetPlan(const FShapePlanKey& Key) const
	{
		for (const FPlan& Known : Plans)
		{
			if (Known.Key == Key)
			{
				return Known.Plan;
			}
		}
		hb_segment_properties_t Properties = HB_SEGMENT_PROPERTIES_DEFAULT;
		Properties.direction = Key.Direction;
		Properties.script = Key.Script;
		static const hb_feature_t NoLigatures[] = {
			{ HB_TAG('l', 'i', 'g', 'a'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END },
			{ HB_TAG('c', 'l', 'i', 'g'), 0, HB_FEATURE_GLOBAL_START, HB_FEATURE_GLOBAL_END },
		};
		hb_shape_plan_t* Plan = hb_shape_plan_create(ShapingFace, &Properties, NoLigatures, Key.bLigatures ? 0 : UE_ARRAY_COUNT(NoLigatures), nullptr);
		Plans.Add({ Key, Plan });
		return Plan;
	}
}
