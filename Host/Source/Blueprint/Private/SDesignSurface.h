#pragma once

#include "CoreMinimal.h"
#include "Widgets/DeclarativeSyntaxSupport.h"
#include "Widgets/SCompoundWidget.h"

/** What a preview is shown in: it keeps the mouse and the keys from it. */
class SDesignSurface final : public SCompoundWidget
{
public:
	SLATE_BEGIN_ARGS(SDesignSurface) { _Visibility = EVisibility::HitTestInvisible; }
	SLATE_END_ARGS()

	void Construct(const FArguments& InArgs);

	/** Shows another preview; the one before is let go first, so that the two are never built at once. */
	void SetContent(TFunctionRef<TSharedRef<SWidget>()> MakeContent);
	void ClearContent();

	virtual FReply OnPreviewKeyDown(const FGeometry& MyGeometry, const FKeyEvent& InKeyEvent) override;
};
