#include "Host/PropertyEdit.h"

#include "Host/EditCondition.h"
#include "Host/LooseValue.h"
#include "Host/PropertyJson.h"
#include "Host/PropertyPath.h"
#include "Misc/StringOutputDevice.h"
#include "UObject/Object.h"

namespace Host
{
	namespace
	{
		/** The indices of the elements on the way, by the names of their arrays. */
		TMap<FString, int32> FindArrayIndices(const FPropertyPlace& Place)
		{
			TMap<FString, int32> Indices;
			for (const FPropertyPlace::FStep& Step : Place.Steps)
			{
				if (Step.Index != INDEX_NONE)
				{
					Indices.Add(Step.Property->GetName(), Step.Index);
				}
			}
			return Indices;
		}

		/**
		 * Raises the notifications around a change; keeps the object's own member and the way to the change.
		 * @param ElementIndex of the element that comes or goes, for a change of the array itself
		 */
		template<typename TChange>
		void ChangeWithNotifications(const FPropertyPlace& Place, FProperty* Changed, EPropertyChangeType::Type ChangeType, TChange Change, int32 ElementIndex = INDEX_NONE)
		{
			UObject* Object = Place.Object;
			FProperty* Member = Place.Steps[0].Property;
			TMap<FString, int32> Indices = FindArrayIndices(Place);
			if (ElementIndex != INDEX_NONE)
			{
				Indices.Add(Changed->GetName(), ElementIndex);
			}
			Object->PreEditChange(Member);
			Change();

			FEditPropertyChain Chain;
			for (const FPropertyPlace::FStep& Step : Place.Steps)
			{
				Chain.AddTail(Step.Property);
			}
			Chain.SetActiveMemberPropertyNode(Member);
			Chain.SetActivePropertyNode(Changed);
			FPropertyChangedEvent Event(Changed, ChangeType);
			Event.SetActiveMemberProperty(Member);
			Event.SetArrayIndexPerObject(TArrayView<const TMap<FString, int32>>(&Indices, 1));
			Event.ObjectIteratorIndex = 0;
			FPropertyChangedChainEvent ChainEvent(Chain, Event);
			Object->PostEditChangeChainProperty(ChainEvent);
		}

		bool IsPlainText(const FProperty& Property)
		{
			return Property.IsA<FStrProperty>() || Property.IsA<FNameProperty>() || Property.IsA<FTextProperty>();
		}

		/** Reads text that may be a string without quotes. */
		bool ImportText(const FProperty& Property, const FString& Text, void* Value, UObject* Owner, FString& OutReason)
		{
			if (Property.IsA<FStrProperty>() && !Text.StartsWith(TEXT("\"")))
			{
				FStrProperty::SetPropertyValue(Value, Text);
				return true;
			}
			if (Property.IsA<FNameProperty>() && !Text.StartsWith(TEXT("\"")))
			{
				if (Text.Len() >= NAME_SIZE)
				{
					OutReason = FString::Printf(TEXT("%s: a name has at most %d characters"), *Property.GetName(), NAME_SIZE - 1);
					return false;
				}
				FNameProperty::SetPropertyValue(Value, FName(Text));
				return true;
			}
			FStringOutputDevice Why;
			const TCHAR* End = Property.ImportText_Direct(*Text, Value, Owner, PPF_None, &Why);
			if (End && FString(End).TrimStartAndEnd().IsEmpty())
			{
				return true;
			}
			Why.TrimStartAndEndInline();
			OutReason = FString::Printf(TEXT("%s: expected %s, found '%s'%s%s"), *Property.GetName(), *Property.GetCPPType(), *Text,
				Why.IsEmpty() ? TEXT("") : TEXT(": "), *Why);
			return false;
		}
	}

	bool FPropertyEdit::SetFromText(UObject* Object, const FString& Path, const FString& Text, FString& OutReason, EPropertyChangeType::Type ChangeType)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		FProperty* Property = Place.Last().Property;
		void* Value = Place.Last().Value;
		const FLooseValue NewValue(*Property, Value);
		if (!ImportText(*Property, Text, NewValue.Get(), Place.Object, OutReason))
		{
			return false;
		}
		ChangeWithNotifications(Place, Property, ChangeType, [&] { Property->CopySingleValue(Value, NewValue.Get()); });
		return true;
	}

	bool FPropertyEdit::SetFromJson(UObject* Object, const FString& Path, const FJsonNode& Node, FString& OutReason, EPropertyChangeType::Type ChangeType)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		FProperty* Property = Place.Last().Property;
		void* Value = Place.Last().Value;
		const bool bWhole = Property->ArrayDim > 1 && Place.Last().Index == INDEX_NONE;
		if (bWhole)
		{
			OutReason = FString::Printf(TEXT("%s: elements are set one by one"), *Property->GetName());
			return false;
		}
		const FLooseValue NewValue(*Property, Value);
		TArray<FString> Messages;
		const auto Report = [&Messages](const FString& Message) { Messages.Add(Message); };
		if (FPropertyJson::ReadElement(Node, Property, NewValue.Get(), Place.Object, Report) > 0)
		{
			OutReason = FString::Join(Messages, TEXT("; "));
			return false;
		}
		ChangeWithNotifications(Place, Property, ChangeType, [&] { Property->CopySingleValue(Value, NewValue.Get()); });
		return true;
	}

	bool FPropertyEdit::FindValue(UObject* Object, const FString& Path, const FProperty*& OutProperty, const void*& OutValue, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		OutProperty = Place.Last().Property;
		OutValue = Place.Last().Value;
		return true;
	}

	bool FPropertyEdit::GetAsText(UObject* Object, const FString& Path, FString& OutText, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		OutText.Empty();
		Place.Last().Property->ExportTextItem_Direct(OutText, Place.Last().Value, nullptr, Place.Object,
			IsPlainText(*Place.Last().Property) ? PPF_PropertyWindow : PPF_None);
		return true;
	}

	bool FPropertyEdit::HasMetaData(UObject* Object, const FString& Path, const TCHAR* Key)
	{
		FPropertyPlace Place;
		FString Reason;
		return Place.Find(Object, Path, Reason) && Place.Steps.ContainsByPredicate([Key](const FPropertyPlace::FStep& Step) { return Step.Property->HasMetaData(Key); });
	}

	bool FPropertyEdit::AddElement(UObject* Object, const FString& ArrayPath, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, ArrayPath, OutReason))
		{
			return false;
		}
		FArrayProperty* Array = CastField<FArrayProperty>(Place.Last().Property);
		if (!Array)
		{
			OutReason = FString::Printf(TEXT("%s is no array"), *Place.Last().Property->GetName());
			return false;
		}
		void* Value = Place.Last().Value;
		const int32 NewIndex = FScriptArrayHelper(Array, Value).Num();
		ChangeWithNotifications(Place, Array, EPropertyChangeType::ArrayAdd, [&] { FScriptArrayHelper(Array, Value).AddValue(); }, NewIndex);
		return true;
	}

	bool FPropertyEdit::RemoveElement(UObject* Object, const FString& ElementPath, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, ElementPath, OutReason))
		{
			return false;
		}
		const int32 Index = Place.Last().Index;
		Place.Steps.Pop();
		FArrayProperty* Array = Place.Steps.Num() > 0 ? CastField<FArrayProperty>(Place.Last().Property) : nullptr;
		if (!Array || Index == INDEX_NONE)
		{
			OutReason = FString::Printf(TEXT("'%s' is no element of an array"), *ElementPath);
			return false;
		}
		void* Value = Place.Last().Value;
		ChangeWithNotifications(Place, Array, EPropertyChangeType::ArrayRemove, [&] { FScriptArrayHelper(Array, Value).RemoveValues(Index); }, Index);
		return true;
	}

	bool FPropertyEdit::ResetToDefault(UObject* Object, const FString& Path, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		// What the archetype has inside an object that it refers to is not reached by the same path from it.
		FPropertyPlace Default;
		const FString Inner = Place.Object == Object ? Path : FString();
		UObject* Archetype = Place.Object->GetArchetype();
		if (Inner.IsEmpty() || !Archetype || !Default.Find(Archetype, Inner, OutReason) || Default.Object != Archetype)
		{
			OutReason = FString::Printf(TEXT("'%s' has no counterpart in the defaults"), *Path);
			return false;
		}
		FProperty* Property = Place.Last().Property;
		void* Value = Place.Last().Value;
		ChangeWithNotifications(Place, Property, EPropertyChangeType::ResetToDefault, [&] { Property->CopySingleValue(Value, Default.Last().Value); });
		return true;
	}

	bool FPropertyEdit::CanEdit(UObject* Object, const FString& Path, FString& OutReason)
	{
		FPropertyPlace Place;
		if (!Place.Find(Object, Path, OutReason))
		{
			return false;
		}
		const EPropertyFlags Disabled = Place.Object->IsTemplate() ? CPF_DisableEditOnTemplate : CPF_DisableEditOnInstance;
		for (const FPropertyPlace::FStep& Step : Place.Steps)
		{
			const FProperty* Property = Step.Property;
			if (!Step.Struct)
			{
				continue;
			}
			if (!Property->HasAnyPropertyFlags(CPF_Edit) || Property->HasAnyPropertyFlags(CPF_EditConst | Disabled))
			{
				OutReason = FString::Printf(TEXT("%s is not editable here"), *Property->GetName());
				return false;
			}
			if (!FEditCondition::Holds(Property, Step.Struct, Step.Container))
			{
				OutReason = FString::Printf(TEXT("%s is editable only while %s"), *Property->GetName(), *Property->GetMetaData(TEXT("EditCondition")));
				return false;
			}
		}
		if (!Place.Object->CanEditChange(Place.Steps[0].Property))
		{
			OutReason = FString::Printf(TEXT("%s does not allow it"), *Place.Object->GetClass()->GetName());
			return false;
		}
		return true;
	}
}
