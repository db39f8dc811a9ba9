#pragma once

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"

class UClass;
class UObject;
class UWidget;
class UWidgetTree;

namespace Host
{
	/** Makes the widgets of a blueprint's tree from its file. */
	class FWidgetTreeReader
	{
	public:
		explicit FWidgetTreeReader(UWidgetTree& InTree)
			: Tree(InTree)
		{
		}

		/** Makes the root and everything under it. What cannot be made is reported and left out. */
		void Read(const FJsonNode& RootNode);

		/** Names of the holes that users of the blueprint can fill, in the order of the file. */
		const TArray<FName>& GetNamedSlots() const { return NamedSlots; }

	private:
		UWidget* ReadWidget(const FJsonNode& Node);
		UClass* ReadClass(const FJsonNode& Node);
		FName ReadName(const FJsonNode& Node, const UClass& Class);
		void ReadPropertiesLater(const FJsonNode& Properties, UObject& Object);
		void ReadChildren(const FJsonNode& Children, UWidget& Parent);
		void ReadNamedSlots(const FJsonNode& Slots, UWidget& Widget);

		/** Properties of a widget or of its place, to be read once all widgets are there: they may name widgets further down. */
		struct FUnreadProperties
		{
			FJsonNode Properties;
			UObject* Object;
		};

		UWidgetTree& Tree;
		TArray<FUnreadProperties> Unread;
		TArray<FName> NamedSlots;
	};
}
