#include "Host/DumpWidgetTree.h"

#include "Host/WidgetPasses.h"
#include "Layout/Children.h"
#include "Widgets/SWidget.h"

namespace Host
{
	namespace
	{
		TMap<FName, FWidgetTextReader>& GetReaders()
		{
			static TMap<FName, FWidgetTextReader> Readers;
			return Readers;
		}

		/** With at most two decimals, and none for whole numbers. */
		FString ToText(float Value)
		{
			FString Text = FString::Printf(TEXT("%.2f"), Value == 0.0f ? 0.0f : Value);
			while (Text.EndsWith(TEXT("0"), ESearchCase::CaseSensitive))
			{
				Text.LeftChopInline(1);
			}
			if (Text.EndsWith(TEXT("."), ESearchCase::CaseSensitive))
			{
				Text.LeftChopInline(1);
			}
			return Text == TEXT("-0") ? FString(TEXT("0")) : Text;
		}

		class FTreeDump
		{
		public:
			explicit FTreeDump(SWidget& Root) : Origin(Root.GetCachedGeometry()) {}

			void Add(SWidget& Widget, int32 Depth)
			{
				for (int32 Level = 0; Level < Depth; ++Level)
				{
					Text += TEXT("  ");
				}
				Text += Widget.GetTypeAsString();
				AddDetails(Widget);
				Text += TEXT("\n");
				Widget.GetChildren()->ForEachWidget([this, Depth](SWidget& Child)
				{
					if (!FWidgetPasses::IsNull(Child))
					{
						Add(Child, Depth + 1);
					}
				});
			}

			FString Text;

		private:
			void AddDetails(SWidget& Widget)
			{
				const FName Tag = Widget.GetTag();
				if (!Tag.IsNone())
				{
					Text += TEXT(" [") + Tag.ToString() + TEXT("]");
				}
				const EVisibility Visibility = Widget.GetVisibility();
				if (Visibility.IsVisible())
				{
					const FGeometry& Geometry = Widget.GetCachedGeometry();
					const FVector2f Position = Origin.AbsoluteToLocal(Geometry.GetAbsolutePosition());
					Text += TEXT(" (") + ToText(Position.X) + TEXT(", ") + ToText(Position.Y) + TEXT(") ") + ToText(Geometry.Size.X) + TEXT(" x ") + ToText(Geometry.Size.Y);
				}
				if (!(Visibility == EVisibility::Visible))
				{
					Text += TEXT(" ") + Visibility.ToString();
				}
				if (!Widget.IsEnabled())
				{
					Text += TEXT(" disabled");
				}
				const FString Shown = GetWidgetText(Widget);
				if (!Shown.IsEmpty())
				{
					Text += TEXT(" \"") + Shown.ReplaceCharWithEscapedChar() + TEXT("\"");
				}
			}

			FGeometry Origin;
		};
	}

	FString DumpWidgetTree(const TSharedRef<SWidget>& Root)
	{
		FTreeDump Dump(Root.Get());
		Dump.Add(Root.Get(), 0);
		return Dump.Text;
	}

	void RegisterWidgetTextReader(FName TypeName, FWidgetTextReader Reader)
	{
		GetReaders().Add(TypeName, Reader);
	}

	FString GetWidgetText(const SWidget& Widget)
	{
		const FWidgetTextReader* Reader = GetReaders().Find(Widget.GetType());
		FString Shown;
		return Reader && (*Reader)(Widget, Shown) ? Shown : FString();
	}
}
