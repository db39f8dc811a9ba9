#include "Checks.h"

#include "CheckHelpers.h"
#include "FileSystem.h"

#include <map>

namespace HeaderTool
{
	std::vector<const FKnownClass*> FCheckContext::GetBases(const FClass& Class) const
	{
		std::vector<const FKnownClass*> Result;
		const FBase* Base = Class.GetReflectedBase();
		std::string Name = Base ? Base->Name : std::string();
		for (auto Found = Module.KnownClasses.find(Name); Found != Module.KnownClasses.end() && Result.size() < 100;
			 Found = Module.KnownClasses.find(Found->second.Base))
		{
			Result.push_back(&Found->second);
		}
		return Result;
	}

	bool FCheckContext::DerivesFrom(const FClass& Class, const std::string& Base) const
	{
		const FBase* Direct = Class.GetReflectedBase();
		if (Direct && Direct->Name == Base)
		{
			return true;
		}
		for (const FKnownClass* Known : GetBases(Class))
		{
			if (Known->Base == Base)
			{
				return true;
			}
		}
		return false;
	}

	void CheckSpecifiers(const FCheckContext& Context, EMacro Macro, const FSpecifiers& Specifiers)
	{
		const std::string MacroName = std::string(GetMacroName(Macro)) + "()";
		for (const FSpecifier& Entry : Specifiers.Entries)
		{
			if (IsSpecifier(Macro, Entry.Key))
			{
				continue;
			}
			std::string Message = "'" + Entry.Key + "' is not a specifier of " + MacroName;
			if (IsMetadataKey(Entry.Key))
			{
				Message += ": write meta=(" + Entry.Key + ")";
			}
			else if (const std::string Suggestion = SuggestSpecifier(Macro, Entry.Key); !Suggestion.empty())
			{
				Message += ": write '" + Suggestion + "'";
			}
			Context.Error(Entry.Location, Message);
		}
		for (const FSpecifier& Entry : Specifiers.Meta)
		{
			if (IsMetadataKey(Entry.Key))
			{
				continue;
			}
			if (IsSpecifier(Macro, Entry.Key))
			{
				Context.Error(Entry.Location, "'" + Entry.Key + "' is a specifier, not metadata: write it outside of meta=()");
			}
			else if (const std::string Suggestion = SuggestMetadataKey(Entry.Key); !Suggestion.empty())
			{
				Context.Error(Entry.Location, "there is no metadata key '" + Entry.Key + "': write '" + Suggestion + "'");
			}
		}
	}

	void CheckConditionals(const FCheckContext& Context, const FSourceFile& File, const FLocation& Location,
		std::string_view Wanted, std::string_view Other)
	{
		for (const FConditional& Conditional : File.GetConditionals(Location.Line))
		{
			if (Conditional.Expression == Wanted)
			{
				continue;
			}
			if (Wanted.empty())
			{
				Context.Error(Location, "a reflected type cannot stand inside of '#if " + Conditional.Expression + "'");
			}
			else if (Conditional.Expression == Other)
			{
				Context.Error(
					Location, "'#if " + std::string(Other) + "' does not fit here: write '#if " + std::string(Wanted) + "'");
			}
			else
			{
				Context.Error(Location,
					"only '#if " + std::string(Wanted) + "' may surround this macro, not '#if " + Conditional.Expression + "'");
			}
		}
	}

	std::string FindBlueprintComplaint(const FCheckContext& Context, const FType& Type)
	{
		switch (Type.Kind)
		{
		case ETypeKind::Int8:
		case ETypeKind::Int16:
		case ETypeKind::UInt16:
		case ETypeKind::UInt32:
		case ETypeKind::UInt64:
			return "graphs have no '" + Type.Written + "': use uint8, int32 or int64";
		case ETypeKind::EnumClass:
			if (Type.EnumSize != 1)
			{
				return "graphs know enumerations of one byte only: write 'enum class " + Type.Target + " : uint8'";
			}
			[[fallthrough]];
		case ETypeKind::PlainEnum:
		case ETypeKind::EnumAsByte:
			return Context.NonBlueprintTypes.contains(Type.Target)
					   ? "graphs cannot use " + Type.Target + ": write UENUM(BlueprintType)"
					   : "";
		case ETypeKind::Struct:
			return Context.NonBlueprintTypes.contains(Type.Target)
					   ? "graphs cannot use " + Type.Target + ": write USTRUCT(BlueprintType)"
					   : "";
		default:
			break;
		}
		for (const FType& Argument : Type.Arguments)
		{
			if (const std::string Complaint = FindBlueprintComplaint(Context, Argument); !Complaint.empty())
			{
				return Complaint;
			}
		}
		return {};
	}

	static void CollectBlueprintTypes(FCheckContext& Context)
	{
		for (const FHeader& Header : Context.Module.Headers)
		{
			for (const FEnum& Enum : Header.Enums)
			{
				(Enum.Specifiers.Has("BlueprintType") ? Context.BlueprintTypes : Context.NonBlueprintTypes).insert(Enum.CppType);
			}
			for (const FClass& Class : Header.Classes)
			{
				if (Class.Kind == EClassKind::Struct)
				{
					// A structure takes the ability over from its base; headers stand in order of inclusion only by chance, so a
					// base of another header counts as able.
					const FBase* Base = Class.GetReflectedBase();
					const bool bInherited = Base && !Context.NonBlueprintTypes.contains(Base->Name);
					(Class.Specifiers.Has("BlueprintType") || bInherited ? Context.BlueprintTypes : Context.NonBlueprintTypes)
						.insert(Class.Name);
				}
			}
		}
	}

	/** One name, one type: script paths name types without their prefix. */
	static void CheckUniqueNames(const FCheckContext& Context)
	{
		std::map<std::string, std::pair<std::string, FLocation>> Taken = Context.Module.ForeignTypes;
		const auto Claim = [&](const std::string& CppName, const FLocation& Location)
		{
			const auto [Found, bAdded] = Taken.emplace(GetScriptName(CppName), std::pair(CppName, Location));
			if (!bAdded)
			{
				Context.Error(Location, CppName + " and " + Found->second.first + " (" + GetBaseName(Found->second.second.File) +
											".h:" + std::to_string(Found->second.second.Line) +
											") have one script name: rename one of them");
			}
		};
		std::map<std::string, std::string> Files;
		for (const FHeader& Header : Context.Module.Headers)
		{
			const std::string& Path = Header.File->GetPath();
			if (const auto [Found, bAdded] = Files.emplace(GetBaseName(Path), Path); !bAdded)
			{
				Context.Error({Path, 1}, "the module has two headers of this name (" + Found->second + "): rename one of them");
			}
			for (const FEnum& Enum : Header.Enums)
			{
				Claim(Enum.Name, Enum.Location);
			}
			for (const FDelegate& Delegate : Header.Delegates)
			{
				Claim(Delegate.Name + "__DelegateSignature", Delegate.Location);
			}
			for (const FClass& Class : Header.Classes)
			{
				if (Class.Kind != EClassKind::InterfaceBody)
				{
					Claim(Class.Name, Class.Location);
				}
			}
		}
	}

	void CheckModule(const FModule& Module, FDiagnostics& Diagnostics)
	{
		FCheckContext Context{Module, Diagnostics, {}, {}};
		CollectBlueprintTypes(Context);
		CheckUniqueNames(Context);
		for (const FHeader& Header : Module.Headers)
		{
			CheckHeader(Context, Header);
			for (const FEnum& Enum : Header.Enums)
			{
				CheckEnum(Context, Header, Enum);
			}
			for (const FDelegate& Delegate : Header.Delegates)
			{
				CheckDelegate(Context, Delegate);
			}
			for (const FClass& Class : Header.Classes)
			{
				CheckClass(Context, Header, Class);
			}
		}
	}
} // namespace HeaderTool
