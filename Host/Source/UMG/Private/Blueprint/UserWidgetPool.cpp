#include "Blueprint/UserWidgetPool.h"

UUserWidget* FUserWidgetPool::AddActiveWidgetInternal(UClass* WidgetClass)
{
	UUserWidget* Widget = nullptr;
	for (int32 Index = InactiveWidgets.Num() - 1; Index >= 0 && !Widget; --Index)
	{
		// One that was declared dead is of no use.
		if (!IsValid(InactiveWidgets[Index]))
		{
			InactiveWidgets.RemoveAt(Index);
		}
		else if (InactiveWidgets[Index]->GetClass() == WidgetClass)
		{
			Widget = InactiveWidgets[Index];
			InactiveWidgets.RemoveAt(Index);
		}
	}
	if (!Widget && OwningWidget.IsValid() && WidgetClass)
	{
		Widget = CreateWidget<UUserWidget>(OwningWidget.Get(), WidgetClass);
	}
	if (Widget)
	{
		ActiveWidgets.Add(Widget);
	}
	return Widget;
}

void FUserWidgetPool::Release(UUserWidget* Widget)
{
	if (ActiveWidgets.Remove(Widget) > 0 && IsValid(Widget))
	{
		InactiveWidgets.Add(Widget);
	}
}

void FUserWidgetPool::ReleaseAll()
{
	InactiveWidgets.Append(ActiveWidgets);
	ActiveWidgets.Reset();
}

void FUserWidgetPool::ResetPool()
{
	ActiveWidgets.Reset();
	InactiveWidgets.Reset();
}
