#pragma once

class UWidgetBlueprintGeneratedClass;

namespace Host
{
	class FJsonNode;

	/**
	 * Reports each property of the blueprint's parent that is to be bound to a widget or an animation of the blueprint and
	 * cannot be: because there is none of that name, unless it is optional, or one of another class.
	 */
	void CheckWidgetBindings(const UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Root);
}
