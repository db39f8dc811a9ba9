#include "Containers/Ticker.h"

#include "Math/UnrealMathUtility.h"

struct FTSTicker::FElement
{
	FTickerDelegate Delegate;
	float Delay = 0.0f;
	double DueTime = 0.0;
	bool bRemoved = false;
};

FTSTicker& FTSTicker::GetCoreTicker()
{
	static FTSTicker Ticker;
	return Ticker;
}

FTSTicker::FTSTicker() = default;
FTSTicker::~FTSTicker() = default;

FTSTicker::FDelegateHandle FTSTicker::AddTicker(const FTickerDelegate& InDelegate, float InDelay)
{
	const TSharedRef<FElement> Element = MakeShared<FElement>();
	Element->Delegate = InDelegate;
	Element->Delay = FMath::Max(InDelay, 0.0f);
	Element->DueTime = Now + Element->Delay;
	Elements.Add(Element);
	return Element.ToWeakPtr();
}

void FTSTicker::RemoveTicker(FDelegateHandle Handle)
{
	if (const TSharedPtr<FElement> Element = Handle.Pin())
	{
		// The list may be in use: the next tick drops it.
		Element->bRemoved = true;
		Element->Delegate.Unbind();
	}
}

void FTSTicker::Tick(float DeltaTime)
{
	Now += DeltaTime;
	const int32 Count = Elements.Num();
	for (int32 Index = 0; Index < Count; ++Index)
	{
		// A callback may add others, and so move the list.
		const TSharedRef<FElement> Element = Elements[Index];
		if (Element->bRemoved || Element->DueTime > Now)
		{
			continue;
		}
		Element->DueTime = Now + Element->Delay;
		// A copy, as the callback may remove itself.
		const FTickerDelegate Delegate = Element->Delegate;
		if (!Delegate.IsBound() || !Delegate.Execute(DeltaTime))
		{
			Element->bRemoved = true;
		}
	}
	Elements.RemoveAll([](const TSharedRef<FElement>& Element) { return Element->bRemoved; });
}

double FTSTicker::GetSecondsUntilNextCall() const
{
	double Seconds = -1.0;
	for (const TSharedRef<FElement>& Element : Elements)
	{
		const double Rest = FMath::Max(Element->DueTime - Now, 0.0);
		if (!Element->bRemoved && (Seconds < 0.0 || Rest < Seconds))
		{
			Seconds = Rest;
		}
	}
	return Seconds;
}
