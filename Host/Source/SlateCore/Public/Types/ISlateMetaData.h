#pragma once

#include "CoreMinimal.h"

/** Something that is known of a widget without the widget knowing it. Kinds are told apart by their type. */
class ISlateMetaData
{
public:
	virtual ~ISlateMetaData() = default;

	template <typename Type>
	bool IsOfType() const
	{
		return IsOfTypeImpl(Type::GetTypeId());
	}

protected:
	virtual bool IsOfTypeImpl(const FName&) const { return false; }
};

/** Written in the body of a class of metadata. */
#define SLATE_METADATA_TYPE(TYPE, BASE) \
public: \
	static const FName& GetTypeId() \
	{ \
		static const FName Type(TEXT(#TYPE)); \
		return Type; \
	} \
	virtual bool IsOfTypeImpl(const FName& Type) const override \
	{ \
		return GetTypeId() == Type || BASE::IsOfTypeImpl(Type); \
	} \
\
private:

/** A name by which a widget can be found. */
class FTagMetaData : public ISlateMetaData
{
	SLATE_METADATA_TYPE(FTagMetaData, ISlateMetaData)

public:
	explicit FTagMetaData(FName InTag) : Tag(InTag) {}

	const FName Tag;
};
