#pragma once

#include "Keywords.h"
#include "ModuleReader.h"

#include <set>

namespace HeaderTool
{
	/** What all checks look things up in. */
	struct FCheckContext
	{
		const FModule& Module;
		FDiagnostics& Diagnostics;
		/** Names of the structures and enumerations of this module that graphs may use, and of those that they may not. */
		std::set<std::string> BlueprintTypes;
		std::set<std::string> NonBlueprintTypes;

		void Error(const FLocation& Location, const std::string& Message) const { Diagnostics.Error(Location, Message); }
		/** The class's known bases, nearest first. */
		std::vector<const FKnownClass*> GetBases(const FClass& Class) const;
		/** True when the class derives, however far, from the named one. */
		bool DerivesFrom(const FClass& Class, const std::string& Base) const;
	};

	void CheckSpecifiers(const FCheckContext& Context, EMacro Macro, const FSpecifiers& Specifiers);
	/** Refuses conditions other than the editor's around a reflected declaration; Wanted is the one that fits. */
	void CheckConditionals(const FCheckContext& Context, const FSourceFile& File, const FLocation& Location,
		std::string_view Wanted, std::string_view Other);
	/** Says why graphs cannot use the type; empty when they can. */
	std::string FindBlueprintComplaint(const FCheckContext& Context, const FType& Type);

	void CheckHeader(const FCheckContext& Context, const FHeader& Header);
	void CheckClass(const FCheckContext& Context, const FHeader& Header, const FClass& Class);
	void CheckProperty(const FCheckContext& Context, const FHeader& Header, const FClass& Class, const FProperty& Property);
	void CheckFunctions(const FCheckContext& Context, const FHeader& Header, const FClass& Class);
	void CheckParameterType(const FCheckContext& Context, const FParameter& Parameter);
	void CheckEnum(const FCheckContext& Context, const FHeader& Header, const FEnum& Enum);
	void CheckDelegate(const FCheckContext& Context, const FDelegate& Delegate);
} // namespace HeaderTool
