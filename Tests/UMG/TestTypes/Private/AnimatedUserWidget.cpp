#include "AnimatedUserWidget.h"

#include "Animation/WidgetAnimation.h"
#include "Blueprint/WidgetTree.h"
#include "Components/Image.h"
#include "Components/TextBlock.h"
#include "Components/VerticalBox.h"

bool UAnimatedUserWidget::Initialize()
{
	if (!Super::Initialize())
	{
		return false;
	}
	UVerticalBox* Box = WidgetTree->ConstructWidget<UVerticalBox>();
	Picture = WidgetTree->ConstructWidget<UImage>(UImage::StaticClass(), TEXT("Picture"));
	Label = WidgetTree->ConstructWidget<UTextBlock>(UTextBlock::StaticClass(), TEXT("Label"));
	Box->AddChild(Picture);
	Box->AddChild(Label);
	WidgetTree->RootWidget = Box;
	return true;
}

UWidgetAnimation* UAnimatedUserWidget::MakeAnimation(FName Name, TArray<Host::FWidgetAnimationTrack> Tracks, double Length)
{
	UWidgetAnimation* Animation = NewObject<UWidgetAnimation>(this, Name);
	Animation->SetTracks(MoveTemp(Tracks), Length);
	Animations.Add(Animation);
	return Animation;
}

void UAnimatedUserWidget::HandleAnimationEvent()
{
	Events.Add(TEXT("Handled"));
}

void UAnimatedUserWidget::OnAnimationStarted_Implementation(const UWidgetAnimation* Animation)
{
	Super::OnAnimationStarted_Implementation(Animation);
	Events.Add(TEXT("Started ") + Animation->GetName());
}

void UAnimatedUserWidget::OnAnimationFinished_Implementation(const UWidgetAnimation* Animation)
{
	Super::OnAnimationFinished_Implementation(Animation);
	Events.Add(TEXT("Finished ") + Animation->GetName());
	if (bPlayAgain)
	{
		PlayAnimation(const_cast<UWidgetAnimation*>(Animation));
	}
}
