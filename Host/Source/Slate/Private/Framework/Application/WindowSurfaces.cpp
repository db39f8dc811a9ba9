#include "Framework/Application/WindowSurfaces.h"

#include "Widgets/SWindow.h"

namespace Host
{
	FWindowSurface* FWindowSurfaces::Find(const SWindow& Window) const
	{
		const FEntry* Entry = Entries.FindByPredicate([&Window](const FEntry& Known) { return Known.Window == &Window; });
		return Entry ? Entry->Surface.Get() : nullptr;
	}

	FWindowSurface* FWindowSurfaces::FindOrMake(SWindow& Window, FSlateRenderer& Renderer)
	{
		FSlateRoot& Root = Window.GetRoot();
		const FIntPoint Size = Root.GetSizePixels();
		FEntry* Entry = Entries.FindByPredicate([&Window](const FEntry& Known) { return Known.Window == &Window; });
		if (!Entry)
		{
			void* Handle = Window.GetNativeWindow().IsValid() ? Window.GetNativeWindow()->GetOSWindowHandle() : nullptr;
			Entries.Add(FEntry{ &Window, Renderer.CreateSurface(Size, Handle) });
			Root.DamageEverything();
			return Entries.Last().Surface.Get();
		}
		if (Entry->Surface.IsValid() && Entry->Surface->GetSize() != Size)
		{
			Entry->Surface->Resize(Size);
			Root.DamageEverything();
		}
		return Entry->Surface.Get();
	}

	void FWindowSurfaces::Draw(SWindow& Window, FSlateRenderer& Renderer)
	{
		FSlateRoot& Root = Window.GetRoot();
		const FIntPoint Size = Root.GetSizePixels();
		if (Root.GetDamage().IsEmpty() || Size.X <= 0 || Size.Y <= 0)
		{
			return;
		}
		if (FWindowSurface* Surface = FindOrMake(Window, Renderer))
		{
			const auto Traverse = [&Root](const FPixelRect& Area, FElementVisitor Visitor) { Root.ForEachElement(Area, Visitor); };
			Surface->DrawFrame(FWindowFrame{ FColor(0, 0, 0, 255), Root.GetDamage(), Traverse });
		}
		Root.ClearDamage();
	}

	void FWindowSurfaces::Remove(const SWindow& Window)
	{
		Entries.RemoveAll([&Window](const FEntry& Known) { return Known.Window == &Window; });
	}
}
