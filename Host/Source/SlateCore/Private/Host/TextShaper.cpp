#include "Host/TextShaper.h"

#include "Host/LineBuilder.h"

namespace Host
{
	namespace
	{
		/** The longest part that does not end within a surrogate pair. */
		FStringView LimitLength(FStringView Text)
		{
			if (Text.Len() <= FTextShaper::MaxLineLength)
			{
				return Text;
			}
			const bool bCutsPair = (Text[FTextShaper::MaxLineLength] & 0xFC00) == 0xDC00;
			return Text.Left(FTextShaper::MaxLineLength - (bCutsPair ? 1 : 0));
		}

		bool IsInvisible(TCHAR Unit)
		{
			return Unit < 0x20 || (Unit >= 0x7F && Unit < 0xA0) || Unit == 0x2028 || Unit == 0x2029;
		}
	}

	FTextShaper::FTextShaper()
		: Buffer(hb_buffer_create())
	{
	}

	FTextShaper::~FTextShaper()
	{
		hb_buffer_destroy(Buffer);
	}

	FShapedRunRef FTextShaper::ShapeLine(const FSizedFontRef& Font, FStringView Text, ETextDirection Direction)
	{
		Text = LimitLength(Text);
		if (Direction != ETextDirection::RightToLeft)
		{
			if (FShapedRunPtr Run = ShapeSimpleLine(Font, Text))
			{
				return Run.ToSharedRef();
			}
		}
		FShapedParagraph Paragraph;
		ShapeParagraph(Font, Text, Direction, Paragraph);
		return FLineBuilder(*this, Paragraph).Build(0, Paragraph.Text.Num());
	}

	FShapedRunPtr FTextShaper::ShapeSimpleLine(const FSizedFontRef& Font, FStringView Text)
	{
		const FResolvedFont& Resolved = FResolvedFont::Of(*Font);
		if (!FTextItemiser::IsSimple(Resolved, Text))
		{
			return nullptr;
		}
		FillBuffer(Text, 0, Text.Len());
		RunShaper(Resolved, 0, FShapePlanKey{ HB_SCRIPT_LATIN, HB_DIRECTION_LTR, Font->GetLetterSpacing() == 0.0f });

		unsigned int Count = 0;
		const hb_glyph_info_t* Infos = hb_buffer_get_glyph_infos(Buffer, &Count);
		const hb_glyph_position_t* Positions = hb_buffer_get_glyph_positions(Buffer, &Count);
		const int32 Spacing = FMath::RoundToInt32(Font->GetLetterSpacing() * FShapedParagraph::UnitsPerPixel);
		const TSharedRef<FShapedRun> Run = MakeShared<FShapedRun>(Font, Text, static_cast<int32>(Count));
		FShapedGlyph* Glyph = Run->EditGlyphs();
		int64 Pen = 0;
		for (unsigned int Index = 0; Index < Count; ++Index, ++Glyph)
		{
			if (Infos[Index].codepoint == 0)
			{
				// The first face lacks a character: others must be asked.
				return nullptr;
			}
			Glyph->X = static_cast<float>(Pen + Positions[Index].x_offset) / FShapedParagraph::UnitsPerPixel;
			Glyph->Cluster = Infos[Index].cluster;
			Glyph->Slot = 0;
			Glyph->bRightToLeft = 0;
			Glyph->Glyph = static_cast<uint16>(Infos[Index].codepoint);
			Glyph->Y = FLineBuilder::ToRunOffset(Positions[Index].y_offset);
			const bool bClusterEnds = Index + 1 == Count || Infos[Index + 1].cluster != Infos[Index].cluster;
			Pen += Positions[Index].x_advance + (bClusterEnds ? Spacing : 0);
		}
		Run->SetWidth(static_cast<float>(Pen) / FShapedParagraph::UnitsPerPixel);
		return Run.ToSharedPtr();
	}

	void FTextShaper::FillBuffer(FStringView Text, int32 Begin, int32 End)
	{
		hb_buffer_clear_contents(Buffer);
		hb_buffer_add_utf16(Buffer, reinterpret_cast<const uint16_t*>(Text.GetData()), Text.Len(), static_cast<unsigned int>(Begin), End - Begin);
	}

	void FTextShaper::RunShaper(const FResolvedFont& Font, int32 Slot, const FShapePlanKey& Key)
	{
		hb_buffer_set_direction(Buffer, Key.Direction);
		hb_buffer_set_script(Buffer, Key.Script);
		hb_buffer_set_flags(Buffer, static_cast<hb_buffer_flags_t>(HB_BUFFER_FLAG_BOT | HB_BUFFER_FLAG_EOT));
		hb_font_t* ShapingFont = Font.GetShapingFont(Slot);
		hb_shape_plan_execute(Font.GetFace(Slot).GetPlan(Key), ShapingFont, Buffer, nullptr, 0);
	}

	void FTextShaper::ShapeParagraph(const FSizedFontRef& Font, FStringView Text, ETextDirection Direction, FShapedParagraph& OutParagraph)
	{
		Text = LimitLength(Text);
		OutParagraph.Font = Font;
		OutParagraph.Text.Reset();
		OutParagraph.Text.Append(Text.GetData(), Text.Len());
		OutParagraph.Glyphs.Reset();
		Itemiser.Itemise(Direction, OutParagraph);
		for (FShapedItem& Item : OutParagraph.Items)
		{
			Item.FirstGlyph = OutParagraph.Glyphs.Num();
			ShapePart(OutParagraph, Item, Item.Begin, Item.End, OutParagraph.Glyphs);
			Item.EndGlyph = OutParagraph.Glyphs.Num();
		}
	}

	void FTextShaper::ShapePart(const FShapedParagraph& Paragraph, const FShapedItem& Item, int32 Begin, int32 End, TArray<FPlacedGlyph>& OutGlyphs)
	{
		const FResolvedFont& Font = FResolvedFont::Of(*Paragraph.Font);
		FillBuffer(Paragraph.GetText(), Begin, End);
		const FShapePlanKey Key{ static_cast<hb_script_t>(Item.Script), Item.IsRightToLeft() ? HB_DIRECTION_RTL : HB_DIRECTION_LTR, Font.GetLetterSpacing() == 0.0f };
		RunShaper(Font, Item.Slot, Key);
		AppendGlyphs(Font, Paragraph.GetText(), Item.Slot, OutGlyphs);
	}

	void FTextShaper::AppendGlyphs(const FResolvedFont& Font, FStringView Text, int32 Slot, TArray<FPlacedGlyph>& OutGlyphs) const
	{
		unsigned int Count = 0;
		const hb_glyph_info_t* Infos = hb_buffer_get_glyph_infos(Buffer, &Count);
		const hb_glyph_position_t* Positions = hb_buffer_get_glyph_positions(Buffer, &Count);
		const int32 Spacing = FMath::RoundToInt32(Font.GetLetterSpacing() * FShapedParagraph::UnitsPerPixel);
		// Without a blank in the face, a number that no glyph has: it draws nothing either.
		const uint16 Space = Font.GetFace(Slot).FindGlyph(' ');
		const uint16 Blank = Space ? Space : MAX_uint16;
		constexpr int32 TabWidth = 4;
		for (unsigned int Index = 0; Index < Count; ++Index)
		{
			FPlacedGlyph& Glyph = OutGlyphs.AddDefaulted_GetRef();
			Glyph.Cluster = static_cast<int32>(Infos[Index].cluster);
			Glyph.Glyph = static_cast<uint16>(Infos[Index].codepoint);
			Glyph.bUnsafeToBreak = (hb_glyph_info_get_glyph_flags(&Infos[Index]) & HB_GLYPH_FLAG_UNSAFE_TO_BREAK) != 0;
			const TCHAR Unit = Text[Glyph.Cluster];
			if (IsInvisible(Unit))
			{
				Glyph.Glyph = Blank;
				Glyph.Advance = Unit == '\t' ? FMath::RoundToInt32(TabWidth * Font.GetMetrics().SpaceAdvance * FShapedParagraph::UnitsPerPixel) : 0;
				continue;
			}
			Glyph.Advance = Positions[Index].x_advance;
			Glyph.OffsetX = Positions[Index].x_offset;
			Glyph.OffsetY = Positions[Index].y_offset;
			const bool bClusterEnds = Index + 1 == Count || Infos[Index + 1].cluster != Infos[Index].cluster;
			// What has no width of its own, such as a joiner, is no character to be set apart.
			if (bClusterEnds && Glyph.Advance != 0)
			{
				Glyph.Advance += Spacing;
			}
		}
	}
}
