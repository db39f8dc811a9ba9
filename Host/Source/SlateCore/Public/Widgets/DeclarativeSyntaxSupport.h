#pragma once

#include <tuple>

#include "CoreMinimal.h"
#include "Delegates/Delegate.h"
#include "GenericPlatform/ICursor.h"
#include "Layout/Clipping.h"
#include "Layout/Visibility.h"
#include "Misc/Attribute.h"
#include "Misc/Optional.h"
#include "Rendering/SlateRenderTransform.h"
#include "SlotBase.h"
#include "Templates/SharedPointer.h"
#include "Types/ISlateMetaData.h"
#include "Widgets/IToolTip.h"
#include "Widgets/SNullWidget.h"
#include "Widgets/SWidget.h"

/** Makes a widget: SNew(SType).Argument(Value)[ Content ] gives a TSharedRef<SType>. Further arguments go to Construct. */
#define SNew(WidgetType, ...) \
	Host::MakeWidgetDeclaration<WidgetType>(#WidgetType __VA_OPT__(, ) __VA_ARGS__) <<= typename WidgetType::FArguments()

/** As SNew, and also stores the widget in a shared pointer or reference. */
#define SAssignNew(ExposeAs, WidgetType, ...) \
	Host::MakeWidgetDeclaration<WidgetType>(#WidgetType __VA_OPT__(, ) __VA_ARGS__).Expose(ExposeAs) <<= typename WidgetType::FArguments()

/** As SNew, from arguments at hand. */
#define SArgumentNew(InArgs, WidgetType, ...) \
	Host::MakeWidgetDeclaration<WidgetType>(#WidgetType __VA_OPT__(, ) __VA_ARGS__) <<= InArgs

/** Opens the arguments of a widget; what follows are the initialisers of their constructor and its body. */
#define SLATE_BEGIN_ARGS(InWidgetType) \
public: \
	struct FArguments : public TSlateBaseNamedArgs<InWidgetType> \
	{ \
		typedef FArguments WidgetArgsType; \
		typedef InWidgetType WidgetType; \
		FArguments()

#define SLATE_END_ARGS() \
	};

/** Opens further arguments of a slot, used as in TBasicLayoutWidgetSlot. */
#define SLATE_SLOT_BEGIN_ARGS(InSlotType, InSlotParentType) \
public: \
	struct FSlotArguments : public InSlotParentType::FSlotArguments \
	{ \
		typedef FSlotArguments WidgetArgsType; \
		using InSlotParentType::FSlotArguments::FSlotArguments; \
		FSlotArguments(FSlotArguments&&) = default;

#define SLATE_SLOT_END_ARGS() \
	};

/** The ways to give a delegate to an argument. Apply makes the argument's value from a delegate. */
#define HOST_SLATE_SETTERS(DelegateType, ArgName, Apply) \
	template <typename... MakerArgs> \
	WidgetArgsType& ArgName##_Static(MakerArgs&&... InMakerArgs) \
	{ \
		_##ArgName = Apply(DelegateType::CreateStatic(Forward<MakerArgs>(InMakerArgs)...)); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template <typename... MakerArgs> \
	WidgetArgsType& ArgName##_Lambda(MakerArgs&&... InMakerArgs) \
	{ \
		_##ArgName = Apply(DelegateType::CreateLambda(Forward<MakerArgs>(InMakerArgs)...)); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template <typename... MakerArgs> \
	WidgetArgsType& ArgName##_Raw(MakerArgs&&... InMakerArgs) \
	{ \
		_##ArgName = Apply(DelegateType::CreateRaw(Forward<MakerArgs>(InMakerArgs)...)); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template <typename... MakerArgs> \
	WidgetArgsType& ArgName##_SP(MakerArgs&&... InMakerArgs) \
	{ \
		_##ArgName = Apply(DelegateType::CreateSP(Forward<MakerArgs>(InMakerArgs)...)); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	template <typename... MakerArgs> \
	WidgetArgsType& ArgName##_UObject(MakerArgs&&... InMakerArgs) \
	{ \
		_##ArgName = Apply(DelegateType::CreateUObject(Forward<MakerArgs>(InMakerArgs)...)); \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** An argument with a value only; Construct finds it as _ArgName. */
#define SLATE_ARGUMENT(ArgType, ArgName) \
	ArgType _##ArgName; \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = MoveTemp(InArg); \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** An argument with a value or a getter: _AttrName is a TAttribute. */
#define SLATE_ATTRIBUTE(AttrType, AttrName) \
	TAttribute<AttrType> _##AttrName; \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	HOST_SLATE_SETTERS(TAttribute<AttrType>::FGetter, AttrName, TAttribute<AttrType>::Create)

/** A delegate that the widget calls. */
#define SLATE_EVENT(DelegateName, EventName) \
	DelegateName _##EventName; \
	WidgetArgsType& EventName(const DelegateName& InDelegate) \
	{ \
		_##EventName = InDelegate; \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	HOST_SLATE_SETTERS(DelegateName, EventName, )

/** A style that the widget keeps by address. */
#define SLATE_STYLE_ARGUMENT(ArgType, ArgName) \
	const ArgType* _##ArgName = nullptr; \
	WidgetArgsType& ArgName(const ArgType* InArg) \
	{ \
		_##ArgName = InArg; \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** Content given as .SlotName()[ Widget ]; Construct finds it as _SlotName.Widget. */
#define SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	TAlwaysValidWidget _##SlotName; \
	NamedSlotProperty<DeclarationType> SlotName() \
	{ \
		return NamedSlotProperty<DeclarationType>(static_cast<DeclarationType&>(*this), _##SlotName); \
	}

/** Content given as [ Widget ]. */
#define SLATE_DEFAULT_SLOT(DeclarationType, SlotName) \
	SLATE_NAMED_SLOT(DeclarationType, SlotName) \
	DeclarationType& operator[](const TSharedRef<SWidget>& InChild) \
	{ \
		_##SlotName.Widget = InChild; \
		return static_cast<DeclarationType&>(*this); \
	}

/** Any number of slots given as + SType::Slot()[ Widget ]; Construct finds them as _SlotName. */
#define SLATE_SLOT_ARGUMENT(SlotType, SlotName) \
	TArray<typename SlotType::FSlotArguments> _##SlotName; \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	WidgetArgsType& operator+(typename SlotType::FSlotArguments&& SlotToAdd) \
	{ \
		_##SlotName.Add(MoveTemp(SlotToAdd)); \
		return static_cast<WidgetArgsType&>(*this); \
	}

/** Content of a widget; the null widget when none is given. */
struct TAlwaysValidWidget
{
	TSharedRef<SWidget> Widget = SNullWidget::NullWidget;
};

/** Takes the content of a named slot. */
template <typename DeclarationType>
struct NamedSlotProperty
{
	NamedSlotProperty(DeclarationType& InOwner, TAlwaysValidWidget& InContent) : Owner(InOwner), Content(InContent) {}

	DeclarationType& operator[](const TSharedRef<SWidget>& InChild)
	{
		Content.Widget = InChild;
		return Owner;
	}

private:
	DeclarationType& Owner;
	TAlwaysValidWidget& Content;
};

/** The arguments that all widgets take. */
struct FSlateBaseNamedArgs
{
	TAttribute<FText> _ToolTipText;
	TAttribute<TSharedPtr<IToolTip>> _ToolTip;
	TAttribute<TOptional<EMouseCursor::Type>> _Cursor;
	TAttribute<bool> _IsEnabled;
	TAttribute<EVisibility> _Visibility;
	TAttribute<TOptional<FSlateRenderTransform>> _RenderTransform;
	TAttribute<FVector2D> _RenderTransformPivot;
	TArray<TSharedRef<ISlateMetaData>> _MetaData;
	FName _Tag;
	float _RenderOpacity = 1.0f;
	EWidgetClipping _Clipping = EWidgetClipping::Inherit;
	bool _ForceVolatile = false;
};

#define HOST_SLATE_COMMON_ATTRIBUTE(AttrType, AttrName) \
	WidgetArgsType& AttrName(TAttribute<AttrType> InAttribute) \
	{ \
		_##AttrName = MoveTemp(InAttribute); \
		return static_cast<WidgetArgsType&>(*this); \
	} \
	HOST_SLATE_SETTERS(TAttribute<AttrType>::FGetter, AttrName, TAttribute<AttrType>::Create)

#define HOST_SLATE_COMMON_ARGUMENT(ArgType, ArgName) \
	WidgetArgsType& ArgName(ArgType InArg) \
	{ \
		_##ArgName = InArg; \
		return static_cast<WidgetArgsType&>(*this); \
	}

template <typename InWidgetType>
struct TSlateBaseNamedArgs : public FSlateBaseNamedArgs
{
	using WidgetType = InWidgetType;
	using WidgetArgsType = typename WidgetType::FArguments;

	HOST_SLATE_COMMON_ATTRIBUTE(FText, ToolTipText)
	HOST_SLATE_COMMON_ATTRIBUTE(TSharedPtr<IToolTip>, ToolTip)
	HOST_SLATE_COMMON_ATTRIBUTE(TOptional<EMouseCursor::Type>, Cursor)
	HOST_SLATE_COMMON_ATTRIBUTE(bool, IsEnabled)
	HOST_SLATE_COMMON_ATTRIBUTE(EVisibility, Visibility)
	HOST_SLATE_COMMON_ATTRIBUTE(TOptional<FSlateRenderTransform>, RenderTransform)
	HOST_SLATE_COMMON_ATTRIBUTE(FVector2D, RenderTransformPivot)
	HOST_SLATE_COMMON_ARGUMENT(FName, Tag)
	HOST_SLATE_COMMON_ARGUMENT(float, RenderOpacity)
	HOST_SLATE_COMMON_ARGUMENT(EWidgetClipping, Clipping)
	HOST_SLATE_COMMON_ARGUMENT(bool, ForceVolatile)

	WidgetArgsType& Cursor(EMouseCursor::Type InCursor) { return Cursor(TAttribute<TOptional<EMouseCursor::Type>>(TOptional<EMouseCursor::Type>(InCursor))); }

	WidgetArgsType& AddMetaData(TSharedRef<ISlateMetaData> InMetaData)
	{
		_MetaData.Add(MoveTemp(InMetaData));
		return static_cast<WidgetArgsType&>(*this);
	}

	template <typename MetaDataType>
	WidgetArgsType& AddMetaData(TSharedRef<MetaDataType> InMetaData)
	{
		return AddMetaData(StaticCastSharedRef<ISlateMetaData>(InMetaData));
	}

	/** As AddMetaData of a new object. */
	template <typename MetaDataType, typename... ArgTypes>
	WidgetArgsType& AddMetaData(ArgTypes&&... InArgs)
	{
		return AddMetaData(StaticCastSharedRef<ISlateMetaData>(MakeShared<MetaDataType>(Forward<ArgTypes>(InArgs)...)));
	}
};

#undef HOST_SLATE_COMMON_ATTRIBUTE
#undef HOST_SLATE_COMMON_ARGUMENT

namespace Host
{
	/** A widget that waits for its arguments. */
	template <typename WidgetType, typename... RequiredTypes>
	class TWidgetDeclaration
	{
	public:
		TWidgetDeclaration(const ANSICHAR* InTypeName, RequiredTypes&&... InRequired)
			: Widget(MakeShared<WidgetType>()), Required(Forward<RequiredTypes>(InRequired)...), TypeName(InTypeName)
		{
		}

		template <typename ExposeType>
		TWidgetDeclaration&& Expose(ExposeType& OutVarToInit) &&
		{
			OutVarToInit = Widget;
			return static_cast<TWidgetDeclaration&&>(*this);
		}

		TSharedRef<WidgetType> operator<<=(const typename WidgetType::FArguments& InArgs) &&
		{
			Widget->SWidgetConstruct(InArgs, TypeName);
			std::apply([&](auto&&... Arguments) { Widget->Construct(InArgs, Forward<decltype(Arguments)>(Arguments)...); }, MoveTemp(Required));
			return Widget;
		}

	private:
		TSharedRef<WidgetType> Widget;
		std::tuple<RequiredTypes&&...> Required;
		const ANSICHAR* TypeName;
	};

	template <typename WidgetType, typename... RequiredTypes>
	TWidgetDeclaration<WidgetType, RequiredTypes...> MakeWidgetDeclaration(const ANSICHAR* TypeName, RequiredTypes&&... Required)
	{
		return TWidgetDeclaration<WidgetType, RequiredTypes...>(TypeName, Forward<RequiredTypes>(Required)...);
	}
}
