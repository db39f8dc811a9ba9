#pragma once

#include "CoreMinimal.h"
#include "Containers/ArrayView.h"
#include "Host/PropertyValue.h"
#include "Misc/Optional.h"
#include "UObject/WeakObjectPtr.h"

class FNumericProperty;
class FProperty;
class UFunction;

namespace Host
{
	/**
	 * A value of an object that animations change: a number, a structure of numbers, a colour or an enumerator. It is a member
	 * that has a setter, or is part of one; each of its numbers is a channel.
	 */
	class UMG_API FAnimatedProperty
	{
	public:
		static constexpr int32 MaxChannels = 16;

		/**
		 * Finds a value from an object on: "RenderOpacity"; parts of a structure, "RenderTransform.Angle"; through an object,
		 * "Slot.Padding". Empty, with the reason, when there is none or it is of a kind that cannot be animated.
		 */
		static TOptional<FAnimatedProperty> Find(UObject& Start, const FString& Path, FString& OutReason);

		/** Type of the value. */
		const FProperty& GetType() const { return *Type; }

		int32 GetNumChannels() const { return Channels.Num(); }

		/** False for enumerators, between which there is nothing. */
		bool IsGradual() const { return bGradual; }

		/** The value that the object has; it must be there. */
		FPropertyValue CopyValue() const;

		/** The numbers of a value of the type. */
		void ReadChannels(const void* Value, TArrayView<double> OutChannels) const;

	private:
		friend class FAnimatedValue;

		struct FChannel
		{
			const FNumericProperty* Number;
			/** In bytes from the start of the value. */
			int32 Offset;
		};

		FAnimatedProperty() = default;

		bool FindChannels(const FProperty& Part, int32 PartOffset);
		bool FindMember(UObject& Object, const FString& Name, FString& OutReason);
		bool FindPart(const FString& Name, FString& OutReason);
		void WriteChannels(void* Value, TConstArrayView<double> Values) const;

		TWeakObjectPtr<UObject> Object;
		/** The object's own member. */
		const FProperty* Member = nullptr;
		UFunction* Setter = nullptr;
		/** The member, or what is animated of it, and where it starts in the member. */
		const FProperty* Type = nullptr;
		int32 Offset = 0;
		TArray<FChannel> Channels;
		bool bGradual = true;
	};
}
