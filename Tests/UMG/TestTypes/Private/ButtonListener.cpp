#include "ButtonListener.h"

#include "Components/Button.h"

void UButtonListener::Listen(UButton& Button)
{
	Button.OnClicked.AddDynamic(this, &UButtonListener::ReceivedClicked);
	Button.OnPressed.AddDynamic(this, &UButtonListener::ReceivedPressed);
	Button.OnReleased.AddDynamic(this, &UButtonListener::ReceivedReleased);
	Button.OnHovered.AddDynamic(this, &UButtonListener::ReceivedHovered);
	Button.OnUnhovered.AddDynamic(this, &UButtonListener::ReceivedUnhovered);
}
