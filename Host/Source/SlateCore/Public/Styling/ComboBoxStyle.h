#pragma once

#include "CoreMinimal.h"
#include "Styling/SlateTypes.h"
#include "ComboBoxStyle.generated.h"

/** The look of a row of a list. */
USTRUCT(BlueprintType)
struct SLATECORE_API FTableRowStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FTableRowStyle& GetDefault();

	/** Behind the row that is selected. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush ActiveBrush;
	FTableRowStyle& SetActiveBrush(const FSlateBrush& InBrush) { ActiveBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush ActiveHoveredBrush;
	FTableRowStyle& SetActiveHoveredBrush(const FSlateBrush& InBrush) { ActiveHoveredBrush = InBrush; return *this; }

	/** Behind the first row, the third and so on. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush EvenRowBackgroundBrush;
	FTableRowStyle& SetEvenRowBackgroundBrush(const FSlateBrush& InBrush) { EvenRowBackgroundBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush EvenRowBackgroundHoveredBrush;
	FTableRowStyle& SetEvenRowBackgroundHoveredBrush(const FSlateBrush& InBrush) { EvenRowBackgroundHoveredBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush OddRowBackgroundBrush;
	FTableRowStyle& SetOddRowBackgroundBrush(const FSlateBrush& InBrush) { OddRowBackgroundBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush OddRowBackgroundHoveredBrush;
	FTableRowStyle& SetOddRowBackgroundHoveredBrush(const FSlateBrush& InBrush) { OddRowBackgroundHoveredBrush = InBrush; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor TextColor = FSlateColor::UseForeground();
	FTableRowStyle& SetTextColor(const FSlateColor& InColor) { TextColor = InColor; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateColor SelectedTextColor = FSlateColor::UseForeground();
	FTableRowStyle& SetSelectedTextColor(const FSlateColor& InColor) { SelectedTextColor = InColor; return *this; }
};

/** The look of a button that opens a menu. */
USTRUCT(BlueprintType)
struct SLATECORE_API FComboButtonStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FComboButtonStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FButtonStyle ButtonStyle;
	FComboButtonStyle& SetButtonStyle(const FButtonStyle& InStyle) { ButtonStyle = InStyle; return *this; }

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush DownArrowImage;
	FComboButtonStyle& SetDownArrowImage(const FSlateBrush& InBrush) { DownArrowImage = InBrush; return *this; }

	/** Behind the menu. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FSlateBrush MenuBorderBrush;
	FComboButtonStyle& SetMenuBorderBrush(const FSlateBrush& InBrush) { MenuBorderBrush = InBrush; return *this; }

	/** Between the edge of the menu and what is in it. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin MenuBorderPadding;
	FComboButtonStyle& SetMenuBorderPadding(const FMargin& InPadding) { MenuBorderPadding = InPadding; return *this; }
};

/** The look of a combo box. */
USTRUCT(BlueprintType)
struct SLATECORE_API FComboBoxStyle : public FSlateWidgetStyle
{
	GENERATED_BODY()

	static const FName TypeName;
	virtual const FName GetTypeName() const override { return TypeName; }
	virtual void GetResources(TArray<const FSlateBrush*>& OutBrushes) const override;
	static const FComboBoxStyle& GetDefault();

	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FComboButtonStyle ComboButtonStyle;
	FComboBoxStyle& SetComboButtonStyle(const FComboButtonStyle& InStyle) { ComboButtonStyle = InStyle; return *this; }

	/** Around what a row of the list shows. */
	UPROPERTY(EditAnywhere, BlueprintReadWrite, Category = "Appearance")
	FMargin MenuRowPadding;
	FComboBoxStyle& SetMenuRowPadding(const FMargin& InPadding) { MenuRowPadding = InPadding; return *this; }
};
