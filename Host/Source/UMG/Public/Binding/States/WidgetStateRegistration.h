#pragma once

#include "CoreMinimal.h"
#include "Binding/States/WidgetStateBitfield.h"
#include "UObject/Object.h"
#include "WidgetStateRegistration.generated.h"

class UWidget;

/** A state that widgets are in or not, and how to ask a widget for it. */
UCLASS(Abstract, Transient, MinimalAPI)
class UWidgetBinaryStateRegistration : public UObject
{
	GENERATED_BODY()

public:
	UMG_API virtual FName GetStateName() const;

	/** True when the widget is in the state now. */
	UMG_API virtual bool GetRegisteredWidgetState(const UWidget* InWidget) const;
};

/** The pointer is over the widget. */
UCLASS(Transient, MinimalAPI)
class UWidgetHoveredStateRegistration : public UWidgetBinaryStateRegistration
{
	GENERATED_BODY()

public:
	/** The set of this state alone. */
	static const inline FWidgetStateBitfield Bit = FWidgetStateBitfield(0);

	UMG_API virtual FName GetStateName() const override;
	UMG_API virtual bool GetRegisteredWidgetState(const UWidget* InWidget) const override;
};

/** The user holds the widget down. */
UCLASS(Transient, MinimalAPI)
class UWidgetPressedStateRegistration : public UWidgetBinaryStateRegistration
{
	GENERATED_BODY()

public:
	/** The set of this state alone. */
	static const inline FWidgetStateBitfield Bit = FWidgetStateBitfield(1);

	UMG_API virtual FName GetStateName() const override;
	UMG_API virtual bool GetRegisteredWidgetState(const UWidget* InWidget) const override;
};

/** The widget cannot be used. */
UCLASS(Transient, MinimalAPI)
class UWidgetDisabledStateRegistration : public UWidgetBinaryStateRegistration
{
	GENERATED_BODY()

public:
	/** The set of this state alone. */
	static const inline FWidgetStateBitfield Bit = FWidgetStateBitfield(2);

	UMG_API virtual FName GetStateName() const override;
	UMG_API virtual bool GetRegisteredWidgetState(const UWidget* InWidget) const override;
};

/** The widget is checked. */
UCLASS(Transient, MinimalAPI)
class UWidgetSelectedStateRegistration : public UWidgetBinaryStateRegistration
{
	GENERATED_BODY()

public:
	/** The set of this state alone. */
	static const inline FWidgetStateBitfield Bit = FWidgetStateBitfield(3);

	UMG_API virtual FName GetStateName() const override;
	UMG_API virtual bool GetRegisteredWidgetState(const UWidget* InWidget) const override;
};
