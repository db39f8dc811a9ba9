#include "StyledButton.h"

#include "Blueprint/WidgetTree.h"
#include "Components/HorizontalBox.h"
#include "Widgets/HxButton.h"
#include "Widgets/HxFontIcon.h"
#include "Widgets/HxText.h"

FStyledButton::FStyledButton(UWidgetTree& Tree, EButtonContent Content, int32 Number)
{
	Button = Tree.ConstructWidget<UHxButton>();
	Text = Tree.ConstructWidget<UHxText>();
	Text->SetText(FText::AsCultureInvariant(FString::Printf(TEXT("Unit %d"), Number)));
	Text->FontStyle = TEXT("extra-small");
	Text->ColorText = FHalvexColorHandler(TEXT("Primary"), true);
	if (Content == EButtonContent::Text)
	{
		Button->SetContent(Text);
		return;
	}
	Icon = Tree.ConstructWidget<UHxFontIcon>();
	Icon->IconSize = 8;
	Icon->IconStyling.IconColor = Text->ColorText;
	UHorizontalBox* Box = Tree.ConstructWidget<UHorizontalBox>();
	Box->AddChild(Icon);
	Box->AddChild(Text);
	Button->SetContent(Box);
}

UWidget& FStyledButton::GetWidget() const
{
	return *Button;
}

void FStyledButton::SetText(const FText& NewText) const
{
	Text->SetText(NewText);
}

void FStyledButton::Restyle() const
{
	Button->UpdateStyle();
	Text->UpdateStyle();
	if (Icon)
	{
		Icon->SynchronizeProperties();
	}
}
