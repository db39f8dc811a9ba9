#pragma once

class UWidgetBlueprintGeneratedClass;

namespace Host
{
	class FJsonNode;

	/** Adds a variable for each animation of a blueprint, unless its parent has one for it. */
	void AddAnimationVariables(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Animations);

	/** Makes the animations, once the tree is there. What is wrong is reported and left out; the rest is played. */
	void ReadAnimations(UWidgetBlueprintGeneratedClass& Class, const FJsonNode& Animations);
}
