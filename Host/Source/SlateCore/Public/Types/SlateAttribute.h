#pragma once

#include "CoreMinimal.h"
#include "Host/AttributeBindings.h"
#include "Internationalization/Text.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"

/** Tells whether a new value of an attribute is the one that it had. */
struct TSlateAttributeComparePredicate
{
	template <typename T>
	static bool IdenticalTo(const T& A, const T& B)
	{
		return A == B;
	}

	static bool IdenticalTo(const FText& A, const FText& B)
	{
		return A.IdenticalTo(B) || A.ToString().Equals(B.ToString(), ESearchCase::CaseSensitive);
	}

	template <typename T>
	static bool IdenticalTo(const TOptional<T>& A, const TOptional<T>& B)
	{
		return A.IsSet() == B.IsSet() && (!A.IsSet() || IdenticalTo(A.GetValue(), B.GetValue()));
	}
};

namespace Host
{
	template <typename T>
	class TAttributeBinding final : public FAttributeBinding
	{
	public:
		TAttributeBinding(T& InValue, const TAttribute<T>& InGetter, EInvalidateWidgetReason InReason)
			: FAttributeBinding(&InValue, InReason), Value(InValue), Getter(InGetter)
		{
		}

		virtual bool Update(SWidget&) override
		{
			T NewValue = Getter.Get();
			if (TSlateAttributeComparePredicate::IdenticalTo(Value, NewValue))
			{
				return false;
			}
			Value = MoveTemp(NewValue);
			return true;
		}

	private:
		T& Value;
		TAttribute<T> Getter;
	};

	void InvalidateForAttribute(SWidget& Owner, EInvalidateWidgetReason Reason);

	/** Gives Value the attribute's value, and binds its getter if it has one. True when the value changed. */
	template <typename T>
	bool AssignAttribute(SWidget& Owner, T& Value, const TAttribute<T>& Attribute, EInvalidateWidgetReason Reason)
	{
		FAttributeBindings::Unbind(Owner, &Value);
		if (!Attribute.IsSet())
		{
			return false;
		}
		T NewValue = Attribute.Get();
		const bool bChanged = !TSlateAttributeComparePredicate::IdenticalTo(Value, NewValue);
		if (bChanged)
		{
			Value = MoveTemp(NewValue);
		}
		if (Attribute.IsBound())
		{
			FAttributeBindings::Bind(Owner, MakeUnique<TAttributeBinding<T>>(Value, Attribute, Reason));
		}
		if (bChanged)
		{
			InvalidateForAttribute(Owner, Reason);
		}
		return bChanged;
	}
}

/**
 * A member of a widget that can be given a value or a getter. It holds the value that is in force, and a change
 * invalidates the widget for the reason that the type names. It belongs to one widget and does not move.
 */
template <typename InObjectType, EInvalidateWidgetReason InReason>
class TSlateAttribute
{
public:
	using ObjectType = InObjectType;

	explicit TSlateAttribute(SWidget&) : Value() {}
	TSlateAttribute(SWidget&, const ObjectType& InValue) : Value(InValue) {}
	TSlateAttribute(const TSlateAttribute&) = delete;
	TSlateAttribute& operator=(const TSlateAttribute&) = delete;

	const ObjectType& Get() const { return Value; }

	/** Drops the getter, if there was one. True when the value changed. */
	bool Set(SWidget& Widget, const ObjectType& NewValue)
	{
		Host::FAttributeBindings::Unbind(Widget, &Value);
		if (TSlateAttributeComparePredicate::IdenticalTo(Value, NewValue))
		{
			return false;
		}
		Value = NewValue;
		Host::InvalidateForAttribute(Widget, InReason);
		return true;
	}

	/** Takes over a value or getter; of an attribute that is not set nothing but the getter is dropped. */
	bool Assign(SWidget& Widget, const TAttribute<ObjectType>& Attribute)
	{
		return Host::AssignAttribute(Widget, Value, Attribute, InReason);
	}

	/** As Assign; an attribute that is not set gives the default. */
	bool Assign(SWidget& Widget, const TAttribute<ObjectType>& Attribute, const ObjectType& DefaultValue)
	{
		return Attribute.IsSet() ? Assign(Widget, Attribute) : Set(Widget, DefaultValue);
	}

	bool IsBound(const SWidget& Widget) const { return Host::FAttributeBindings::IsBound(Widget, &Value); }
	void Unbind(SWidget& Widget) { Host::FAttributeBindings::Unbind(Widget, &Value); }

private:
	ObjectType Value;
};
