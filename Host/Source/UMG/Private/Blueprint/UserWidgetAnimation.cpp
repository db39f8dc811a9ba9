#include "Blueprint/UserWidget.h"

#include "Animation/UMGSequencePlayer.h"
#include "Animation/WidgetAnimation.h"
#include "Host/GameThreadQueue.h"
#include "Slate/SObjectWidget.h"

UUMGSequencePlayer* UUserWidget::FindSequencePlayer(const UWidgetAnimation* InAnimation) const
{
	const TObjectPtr<UUMGSequencePlayer>* Found = ActiveSequencePlayers.FindByPredicate([InAnimation](const UUMGSequencePlayer* Player) { return Player->GetAnimation() == InAnimation; });
	return Found ? Found->Get() : nullptr;
}

UUMGSequencePlayer* UUserWidget::FindOrAddSequencePlayer(UWidgetAnimation& InAnimation)
{
	UUMGSequencePlayer* Player = FindSequencePlayer(&InAnimation);
	if (!Player)
	{
		Player = NewObject<UUMGSequencePlayer>(this);
		Player->InitSequencePlayer(InAnimation, *this);
		ActiveSequencePlayers.Add(Player);
	}
	return Player;
}

UUMGSequencePlayer* UUserWidget::StartAnimation(UWidgetAnimation* InAnimation, float StartAtTime, TOptional<double> EndAtTime, int32 NumLoopsToPlay, EUMGSequencePlayMode::Type PlayMode, float PlaybackSpeed, bool bRestoreState)
{
	if (!InAnimation || bStoppingAllAnimations)
	{
		return nullptr;
	}
	UUMGSequencePlayer* Player = FindOrAddSequencePlayer(*InAnimation);
	UUMGSequencePlayer::FSettings Settings;
	Settings.StartAtTime = StartAtTime;
	Settings.EndTime = EndAtTime;
	Settings.NumLoops = NumLoopsToPlay;
	Settings.Mode = PlayMode;
	Settings.Speed = PlaybackSpeed;
	Settings.bRestoreState = bRestoreState;
	Player->Play(Settings);
	UpdateAnimationTimer();
	OnAnimationStartedPlaying(*Player);
	return Player;
}

UUMGSequencePlayer* UUserWidget::PlayAnimation(UWidgetAnimation* InAnimation, float StartAtTime, int32 NumLoopsToPlay, EUMGSequencePlayMode::Type PlayMode, float PlaybackSpeed, bool bRestoreState)
{
	return StartAnimation(InAnimation, StartAtTime, {}, NumLoopsToPlay, PlayMode, PlaybackSpeed, bRestoreState);
}

UUMGSequencePlayer* UUserWidget::PlayAnimationTimeRange(UWidgetAnimation* InAnimation, float StartAtTime, float EndAtTime, int32 NumLoopsToPlay, EUMGSequencePlayMode::Type PlayMode, float PlaybackSpeed, bool bRestoreState)
{
	return StartAnimation(InAnimation, StartAtTime, EndAtTime, NumLoopsToPlay, PlayMode, PlaybackSpeed, bRestoreState);
}

UUMGSequencePlayer* UUserWidget::PlayAnimationTowards(UWidgetAnimation* InAnimation, EUMGSequencePlayMode::Type Direction, float PlaybackSpeed, bool bRestoreState)
{
	UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation);
	if (!Player || !Player->IsPlaying())
	{
		return PlayAnimation(InAnimation, 0.0f, 1, Direction, PlaybackSpeed, bRestoreState);
	}
	if (Player->IsPlayingForward() != (Direction == EUMGSequencePlayMode::Forward))
	{
		Player->Playhead.Reverse();
	}
	return Player;
}

UUMGSequencePlayer* UUserWidget::PlayAnimationForward(UWidgetAnimation* InAnimation, float PlaybackSpeed, bool bRestoreState)
{
	return PlayAnimationTowards(InAnimation, EUMGSequencePlayMode::Forward, PlaybackSpeed, bRestoreState);
}

UUMGSequencePlayer* UUserWidget::PlayAnimationReverse(UWidgetAnimation* InAnimation, float PlaybackSpeed, bool bRestoreState)
{
	return PlayAnimationTowards(InAnimation, EUMGSequencePlayMode::Reverse, PlaybackSpeed, bRestoreState);
}

void UUserWidget::StopAnimation(const UWidgetAnimation* InAnimation)
{
	if (UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation))
	{
		FinishAnimation(*Player);
	}
}

void UUserWidget::StopAllAnimations()
{
	bStoppingAllAnimations = true;
	while (!ActiveSequencePlayers.IsEmpty())
	{
		FinishAnimation(*ActiveSequencePlayers[0]);
	}
	bStoppingAllAnimations = false;
}

float UUserWidget::PauseAnimation(const UWidgetAnimation* InAnimation)
{
	UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation);
	if (!Player)
	{
		return 0.0f;
	}
	Player->Pause();
	return static_cast<float>(Player->Playhead.GetTime());
}

float UUserWidget::GetAnimationCurrentTime(const UWidgetAnimation* InAnimation) const
{
	const UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation);
	return Player ? static_cast<float>(Player->Playhead.GetTime()) : 0.0f;
}

void UUserWidget::SetAnimationCurrentTime(const UWidgetAnimation* InAnimation, float InTime)
{
	if (UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation))
	{
		Player->SetCurrentTime(InTime);
		UpdateAnimationTimer();
	}
}

bool UUserWidget::IsAnimationPlaying(const UWidgetAnimation* InAnimation) const
{
	const UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation);
	return Player && Player->IsPlaying();
}

bool UUserWidget::IsAnyAnimationPlaying() const
{
	return ActiveSequencePlayers.ContainsByPredicate([](const UUMGSequencePlayer* Player) { return Player->IsPlaying(); });
}

void UUserWidget::SetNumLoopsToPlay(const UWidgetAnimation* InAnimation, int32 NumLoopsToPlay)
{
	if (UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation))
	{
		Player->Playhead.SetNumLoops(NumLoopsToPlay);
	}
}

void UUserWidget::SetPlaybackSpeed(const UWidgetAnimation* InAnimation, float PlaybackSpeed)
{
	if (UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation))
	{
		Player->Speed = FMath::Abs(PlaybackSpeed);
		UpdateAnimationTimer();
	}
}

void UUserWidget::ReverseAnimation(const UWidgetAnimation* InAnimation)
{
	if (UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation); Player && Player->IsPlaying())
	{
		Player->Playhead.Reverse();
	}
}

bool UUserWidget::IsAnimationPlayingForward(const UWidgetAnimation* InAnimation) const
{
	const UUMGSequencePlayer* Player = FindSequencePlayer(InAnimation);
	return Player && Player->IsPlaying() && Player->IsPlayingForward();
}

void UUserWidget::FlushAnimations()
{
	// A setter may run code that starts or stops animations.
	const TArray<TObjectPtr<UUMGSequencePlayer>, TInlineAllocator<4>> Players(ActiveSequencePlayers);
	for (UUMGSequencePlayer* Player : Players)
	{
		Player->Flush();
	}
}

void UUserWidget::FinishAnimation(UUMGSequencePlayer& Player)
{
	// Off the list first: what listens may play the animation again.
	ActiveSequencePlayers.Remove(&Player);
	Player.Stop();
	OnAnimationFinishedPlaying(Player);
}

bool UUserWidget::NeedsAnimationTick() const
{
	return !IsDesignTime() && ActiveSequencePlayers.ContainsByPredicate([](const UUMGSequencePlayer* Player) { return Player->NeedsTick(); });
}

void UUserWidget::UpdateAnimationTimer()
{
	const TSharedPtr<FActiveTimerHandle> Timer = AnimationTimer.Pin();
	const TSharedPtr<SObjectWidget> SlateSide = MyGCWidget.Pin();
	if (SlateSide && !(Timer && Timer->IsActive()) && NeedsAnimationTick())
	{
		AnimationTimer = SlateSide->RegisterActiveTimer(0.0f, FWidgetActiveTimerDelegate::CreateUObject(this, &UUserWidget::TickAnimations));
	}
}

EActiveTimerReturnType UUserWidget::TickAnimations(double, float DeltaTime)
{
	// What listens for the end of one may start and stop others.
	const TArray<TObjectPtr<UUMGSequencePlayer>, TInlineAllocator<4>> Players(ActiveSequencePlayers);
	for (UUMGSequencePlayer* Player : Players)
	{
		if (ActiveSequencePlayers.Contains(Player) && Player->Tick(DeltaTime))
		{
			FinishAnimation(*Player);
		}
	}
	return NeedsAnimationTick() ? EActiveTimerReturnType::Continue : EActiveTimerReturnType::Stop;
}

void UUserWidget::DropAnimationsUnlessShown()
{
	if (ActiveSequencePlayers.IsEmpty())
	{
		return;
	}
	// A widget that only moves to another parent goes on playing there.
	Host::FGameThreadQueue::Post([WeakThis = TWeakObjectPtr<UUserWidget>(this)]
	{
		UUserWidget* This = WeakThis.Get();
		if (!This || This->IsConstructed())
		{
			return;
		}
		const TArray<TObjectPtr<UUMGSequencePlayer>> Players = MoveTemp(This->ActiveSequencePlayers);
		This->ActiveSequencePlayers.Empty();
		for (UUMGSequencePlayer* Player : Players)
		{
			Player->Stop();
		}
	});
}

void UUserWidget::OnAnimationStarted_Implementation(const UWidgetAnimation*)
{
}

void UUserWidget::OnAnimationFinished_Implementation(const UWidgetAnimation*)
{
}

void UUserWidget::OnAnimationStartedPlaying(UUMGSequencePlayer& Player)
{
	OnAnimationStarted(Player.GetAnimation());
	BroadcastAnimationEvent(Player, EWidgetAnimationEvent::Started);
}

void UUserWidget::OnAnimationFinishedPlaying(UUMGSequencePlayer& Player)
{
	OnAnimationFinished(Player.GetAnimation());
	BroadcastAnimationEvent(Player, EWidgetAnimationEvent::Finished);
}

void UUserWidget::BroadcastAnimationEvent(const UUMGSequencePlayer& Player, EWidgetAnimationEvent AnimationEvent)
{
	// A copy: what is called may bind and unbind.
	const TArray<FAnimationEventBinding> Bindings = AnimationCallbacks;
	for (const FAnimationEventBinding& Binding : Bindings)
	{
		const bool bTagFits = Binding.UserTag.IsNone() || Binding.UserTag == Player.GetUserTag();
		if (Binding.Animation == Player.GetAnimation() && Binding.AnimationEvent == AnimationEvent && bTagFits)
		{
			Binding.Delegate.ExecuteIfBound();
		}
	}
}

void UUserWidget::BindToAnimationEvent(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate, EWidgetAnimationEvent AnimationEvent, FName UserTag)
{
	FAnimationEventBinding& Binding = AnimationCallbacks.AddDefaulted_GetRef();
	Binding.Animation = Animation;
	Binding.Delegate = Delegate;
	Binding.AnimationEvent = AnimationEvent;
	Binding.UserTag = UserTag;
}

void UUserWidget::UnbindFromAnimationEvent(const UWidgetAnimation* Animation, const FWidgetAnimationDynamicEvent& Delegate, EWidgetAnimationEvent AnimationEvent)
{
	AnimationCallbacks.RemoveAll([&](const FAnimationEventBinding& Binding) { return Binding.Animation == Animation && Binding.AnimationEvent == AnimationEvent && Binding.Delegate == Delegate; });
}

void UUserWidget::UnbindAllFromAnimationEvent(const UWidgetAnimation* Animation, EWidgetAnimationEvent AnimationEvent)
{
	AnimationCallbacks.RemoveAll([&](const FAnimationEventBinding& Binding) { return Binding.Animation == Animation && Binding.AnimationEvent == AnimationEvent; });
}

void UUserWidget::BindToAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate)
{
	BindToAnimationEvent(Animation, Delegate, EWidgetAnimationEvent::Started);
}

void UUserWidget::UnbindFromAnimationStarted(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate)
{
	UnbindFromAnimationEvent(Animation, Delegate, EWidgetAnimationEvent::Started);
}

void UUserWidget::UnbindAllFromAnimationStarted(UWidgetAnimation* Animation)
{
	UnbindAllFromAnimationEvent(Animation, EWidgetAnimationEvent::Started);
}

void UUserWidget::BindToAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate)
{
	BindToAnimationEvent(Animation, Delegate, EWidgetAnimationEvent::Finished);
}

void UUserWidget::UnbindFromAnimationFinished(UWidgetAnimation* Animation, FWidgetAnimationDynamicEvent Delegate)
{
	UnbindFromAnimationEvent(Animation, Delegate, EWidgetAnimationEvent::Finished);
}

void UUserWidget::UnbindAllFromAnimationFinished(UWidgetAnimation* Animation)
{
	UnbindAllFromAnimationEvent(Animation, EWidgetAnimationEvent::Finished);
}
