#include "CheckHelpers.h"

namespace HeaderTool
{
	void CheckEnum(const FCheckContext& Context, const FHeader& Header, const FEnum& Enum)
	{
		CheckSpecifiers(Context, EMacro::Enum, Enum.Specifiers);
		CheckConditionals(Context, *Header.File, Enum.Location, "", "");
		if (Enum.Specifiers.Has("BlueprintType") && Enum.Form == EEnumForm::EnumClass && !Enum.bUInt8)
		{
			Context.Error(Enum.Location, "an enumeration for graphs has one byte: write 'enum class " + Enum.Name + " : uint8'");
		}
		for (const FEnumerator& Enumerator : Enum.Enumerators)
		{
			CheckSpecifiers(Context, EMacro::Enumerator, Enumerator.Specifiers);
			if (Enum.Form != EEnumForm::EnumClass && Enum.Specifiers.Has("BlueprintType") &&
				(Enumerator.Value < 0 || Enumerator.Value > 255))
			{
				Context.Error(Enumerator.Location,
					"'" + Enumerator.Name + "' does not fit into the one byte that graphs keep an enumeration in");
			}
		}
	}
} // namespace HeaderTool
