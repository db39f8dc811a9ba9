#pragma once

#include "CoreMinimal.h"

class UObject;

DECLARE_LOG_CATEGORY_EXTERN(LogBlueprint, Log, All);

namespace Host
{
	struct FAssetRequest;

	/**
	 * Makes the class of a widget blueprint from its ".widget.json" file:
	 *
	 *   {
	 *     "Parent": path of the class that it derives from; "/Script/UMG.UserWidget" when left out
	 *     "Interfaces": [path of an interface], whose events the graph may define
	 *     "Defaults": {property: value}, for the class default object
	 *     "Variables": {name: {"Type": type, "Default": value, "Category": text}}
	 *     "Root": widget
	 *     "Animations": {name: animation}
	 *   }
	 *
	 * where a widget is
	 *
	 *   {
	 *     "Class": a class of widgets by name ("TextBlock") or path, or the path of another widget blueprint
	 *     "Name": unique in the blueprint; made up when left out
	 *     "Properties": {property: value}
	 *     "Slot": {property: value}, for the place in the parent
	 *     "Children": [widget]
	 *     "NamedSlots": {name: widget}, for another blueprint with holes
	 *   }
	 *
	 * an animation is
	 *
	 *   {
	 *     "Duration": seconds; up to the last key when left out
	 *     "Tracks": [{
	 *       "Widget": name of the widget whose property changes; the blueprint's own when left out
	 *       "Property": "RenderOpacity", or a part of a structure, "RenderTransform.Angle"
	 *       "Keys": [{"Time": seconds, "Value": value, "Interpolation": "Constant", "Linear" or "Cubic"}], in order of time
	 *     }]
	 *   }
	 *
	 * and the functions of the graph come from the ".lua" file of the same name, if there is one. What is wrong is one line in
	 * the log each; the rest is made all the same.
	 */
	UObject* LoadWidgetBlueprint(const FAssetRequest& Request);
}
