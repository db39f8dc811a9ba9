#pragma once

#include "CoreMinimal.h"
#include "Fonts/SlateFontInfo.h"
#include "Styling/CoreStyle.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SCompoundWidget.h"

/** A tool tip: text, or any content, in a frame. */
class SLATE_API SToolTip : public SCompoundWidget, public IToolTip
{
public:
	SLATE_BEGIN_ARGS(SToolTip)
		: _Text()
		, _Content()
		, _Font(FCoreStyle::Get().GetFontStyle("ToolTip.Font"))
		, _ColorAndOpacity(FSlateColor::UseForeground())
		, _TextMargin(FMargin(8.0f))
		, _BorderImage(FCoreStyle::Get().GetBrush("ToolTip.Background"))
	{
	}
		/** Shown where no content is given. */
		SLATE_ATTRIBUTE(FText, Text)
		SLATE_DEFAULT_SLOT(FArguments, Content)
		SLATE_ATTRIBUTE(FSlateFontInfo, Font)
		/** Of the text. */
		SLATE_ATTRIBUTE(FSlateColor, ColorAndOpacity)
		/** Between the frame and the text or content. */
		SLATE_ATTRIBUTE(FMargin, TextMargin)
		SLATE_ATTRIBUTE(const FSlateBrush*, BorderImage)
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	virtual TSharedRef<SWidget> AsWidget() override { return AsShared(); }
	virtual bool IsEmpty() const override;

	/** The text; empty when the tool tip was given content instead. */
	FText GetTextTooltip() const;

private:
	TAttribute<FText> Text;
	bool bHasContent = false;
};
