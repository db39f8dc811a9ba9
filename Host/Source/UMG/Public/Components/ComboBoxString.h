#pragma once

#include "CoreMinimal.h"
#include "Components/Widget.h"
#include "Fonts/SlateFontInfo.h"
#include "Layout/Margin.h"
#include "Styling/SlateTypes.h"
#include "Types/SlateEnums.h"
#include "ComboBoxString.generated.h"

class SBox;
class STextBlock;
template <typename OptionType>
class SComboBox;

/**
 * Shows one of several texts, and lets the user choose another from a list. While the list is closed, Up, Down, Home and End
 * select, Enter, the space bar, Alt with Up or Down and letters open it; the wheel is left to what the box stands in.
 */
UCLASS(meta = (DisplayName = "ComboBox (String)"), MinimalAPI)
class UComboBoxString : public UWidget
{
	GENERATED_BODY()

public:
	DECLARE_DYNAMIC_MULTICAST_DELEGATE_TwoParams(FOnSelectionChangedEvent, FString, SelectedItem, ESelectInfo::Type, SelectionType);
	DECLARE_DYNAMIC_MULTICAST_DELEGATE(FOnOpeningEvent);

	/** Called when another option is selected, by the user or from code; the text is empty when the selection was cleared. */
	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnSelectionChangedEvent OnSelectionChanged;

	/** Called before the list opens. */
	UPROPERTY(BlueprintAssignable, Category = "Events")
	FOnOpeningEvent OnOpening;

	/** Makes what the box and the rows of its list show for an option; unbound, or without a widget, its text is shown. */
	UPROPERTY(EditAnywhere, Category = "Events")
	FGenerateWidgetForString OnGenerateWidgetEvent;

	UMG_API UComboBoxString(const FObjectInitializer& ObjectInitializer = FObjectInitializer::Get());

	/** Adds an option at the end. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void AddOption(const FString& Option);

	/** Removes the first option of that text, and clears the selection when it was that. False when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API bool RemoveOption(const FString& Option);

	/** Index of the first option of that text, in upper or lower case; -1 when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API int32 FindOptionIndex(const FString& Option) const;

	/** The option of that index; empty when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API FString GetOptionAtIndex(int32 Index) const;

	/** Removes all options and clears the selection, which calls OnSelectionChanged with an empty text if there was one. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void ClearOptions();

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void ClearSelection();

	/** Shows changed options, also in a list that is open, and makes anew what the box shows. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void RefreshOptions();

	/** Selects the first option of that text; nothing happens when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void SetSelectedOption(FString Option);

	/** Selects the option of that index; nothing happens when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API void SetSelectedIndex(const int32 Index);

	/** The selected text; empty when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API FString GetSelectedOption() const;

	/** Index of the selected option; -1 when there is none. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API int32 GetSelectedIndex() const;

	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API int32 GetOptionCount() const;

	/** True while the list is open. */
	UFUNCTION(BlueprintCallable, Category = "ComboBox")
	UMG_API bool IsOpen() const;

	const FComboBoxStyle& GetWidgetStyle() const { return WidgetStyle; }

	/** Replaces the style of the box and of the frame of its list. */
	UMG_API void SetWidgetStyle(const FComboBoxStyle& InWidgetStyle);

	const FTableRowStyle& GetItemStyle() const { return ItemStyle; }

	/** Replaces the style of the rows; the list shows it when it opens next. */
	UMG_API void SetItemStyle(const FTableRowStyle& InItemStyle);

	const FScrollBarStyle& GetScrollBarStyle() const { return ScrollBarStyle; }

	/** Replaces the style of the scroll bar; the list shows it when it opens next. */
	UMG_API void SetScrollBarStyle(const FScrollBarStyle& InScrollBarStyle);

	FMargin GetContentPadding() const { return ContentPadding; }

	/** Sets the room between the edge of the box and its text. */
	UMG_API void SetContentPadding(FMargin InPadding);

	float GetMaxListHeight() const { return MaxListHeight; }

	/** Sets the greatest height of the list, in Slate units; it holds when the list opens next. */
	UMG_API void SetMaxListHeight(float InMaxHeight);

	bool IsHasDownArrow() const { return HasDownArrow; }

	/** Sets whether the box shows an arrow. */
	UMG_API void SetHasDownArrow(bool InHasDownArrow);

	const FSlateFontInfo& GetFont() const { return Font; }
	FSlateColor GetForegroundColor() const { return ForegroundColor; }
	bool IsFocusable() const { return bIsFocusable; }

	UMG_API virtual void SynchronizeProperties() override;
	UMG_API virtual void ReleaseSlateResources(bool bReleaseChildren) override;
	UMG_API virtual void PostLoad() override;

#if WITH_EDITOR
	UMG_API virtual const FText GetPaletteCategory() override;
#endif

protected:
	UMG_API virtual TSharedRef<SWidget> RebuildWidget() override;
	UMG_API virtual void HandleSelectionChanged(TSharedPtr<FString> Item, ESelectInfo::Type SelectionType);
	UMG_API virtual void HandleOpening();
	UMG_API virtual TSharedRef<SWidget> HandleGenerateWidget(TSharedPtr<FString> Item) const;

	/** To be called before the Slate side is made. */
	UMG_API void InitFont(FSlateFontInfo InFont);
	UMG_API void InitForegroundColor(FSlateColor InForegroundColor);
	UMG_API void InitIsFocusable(bool InIsFocusable);

private:
	/** The widget that the event makes for an option; null when it makes none. */
	UWidget* Generate(const FString& Option) const;
	/** Takes over the options and the selection that the properties name, once. */
	void TakeDefaults();
	void Select(const TSharedPtr<FString>& Item);
	void RefreshList();
	void ShowSelection();

	/** The options at first. */
	UPROPERTY(EditAnywhere, Category = "Content")
	TArray<FString> DefaultOptions;

	/** The option that is selected. */
	UPROPERTY(EditAnywhere, Category = "Content")
	FString SelectedOption;

	/** How the box and the frame of its list look. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Style", meta = (DisplayName = "Style", AllowPrivateAccess = "true"))
	FComboBoxStyle WidgetStyle;

	/** How the rows of the list look. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Style", meta = (AllowPrivateAccess = "true"))
	FTableRowStyle ItemStyle;

	/** How the scroll bar of the list looks. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Style", meta = (AllowPrivateAccess = "true"))
	FScrollBarStyle ScrollBarStyle;

	/** Between the edge of the box and its text. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Content", meta = (AllowPrivateAccess = "true"))
	FMargin ContentPadding = FMargin(4.0f, 2.0f);

	/** Greatest height of the list, in Slate units. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Content", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	float MaxListHeight = 450.0f;

	/** Whether the box shows an arrow. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Content", AdvancedDisplay, meta = (AllowPrivateAccess = "true"))
	bool HasDownArrow = true;

	/** Of the texts in the box and in its list. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Style", meta = (AllowPrivateAccess = "true"))
	FSlateFontInfo Font;

	/** Colour of the text in the box. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Style", meta = (AllowPrivateAccess = "true"))
	FSlateColor ForegroundColor = FSlateColor::UseStyle();

	/** Whether the box can have the keyboard; takes effect when the Slate side is made. */
	UPROPERTY(EditAnywhere, BlueprintReadOnly, Category = "Interaction", meta = (AllowPrivateAccess = "true"))
	bool bIsFocusable = true;

	/** Made by the event for the box, and for the rows since the list was opened last: their Slate sides point into them. */
	UPROPERTY(Transient)
	TObjectPtr<UWidget> GeneratedContent;
	UPROPERTY(Transient)
	mutable TArray<TObjectPtr<UWidget>> GeneratedRows;

	TArray<TSharedPtr<FString>> Options;
	TSharedPtr<FString> CurrentOption;
	bool bTookDefaults = false;
	TSharedPtr<SComboBox<TSharedPtr<FString>>> MyComboBox;
	/** What the box shows is in it. */
	TSharedPtr<SBox> MyContent;
	/** Shown in the box when the event makes nothing. */
	TSharedPtr<STextBlock> MyText;
};
