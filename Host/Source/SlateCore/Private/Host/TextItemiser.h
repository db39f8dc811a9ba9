#pragma once

#include "CoreMinimal.h"
#include "Host/ResolvedFont.h"
#include "Host/ShapedParagraph.h"

struct UBiDi;

namespace Host
{
	enum class ETextDirection : uint8;

	/** Cuts paragraphs into items: parts that can be shaped at once. */
	class FTextItemiser
	{
	public:
		FTextItemiser() = default;
		~FTextItemiser();
		FTextItemiser(const FTextItemiser&) = delete;
		FTextItemiser& operator=(const FTextItemiser&) = delete;

		/** Whether the text is one item from left to right in Latin letters and signs, all of which no sub-font draws. */
		static bool IsSimple(const FResolvedFont& Font, FStringView Text);

		/** Fills in items and base level of a paragraph whose text and font are set. */
		void Itemise(ETextDirection Direction, FShapedParagraph& Paragraph);

	private:
		void FindLevels(ETextDirection Direction, FShapedParagraph& Paragraph);

		UBiDi* Bidi = nullptr;
		/** Embedding level of each UTF-16 unit; empty when all are at the base level. */
		TArray<uint8> Levels;
	};
}
