#pragma once

#include "Clang.h"
#include "Model.h"

#include <unordered_map>
#include <unordered_set>

namespace HeaderTool
{
	/** Tells what a C++ type is to reflection. */
	class FTypeReader
	{
	public:
		/** A structure that is described without GENERATED_BODY(), such as a vector. */
		void AddBaseStructure(CXType Type);
		/** An enumeration that carries UENUM, by its qualified name. */
		void AddReflectedEnum(const std::string& QualifiedName) { ReflectedEnums.insert(QualifiedName); }

		FType Read(CXType Type);

		/** True when the class's body carries GENERATED_BODY(). */
		bool IsReflectedClass(CXCursor Class);

	private:
		void ReadScalar(CXType Canonical, FType& Out);
		void ReadPointer(CXType Canonical, FType& Out);
		void ReadEnum(CXType Canonical, FType& Out);
		void ReadRecord(CXType Written, CXType Canonical, FType& Out);
		bool ReadTemplate(CXType Written, CXType Canonical, const std::string& Name, FType& Out);
		void ReadContainer(ETypeKind Kind, CXType Type, int NumArguments, FType& Out);
		void ReadObjectTemplate(ETypeKind Kind, CXType Argument, FType& Out);
		bool DerivesFrom(CXCursor Class, std::string_view TemplateName);

		std::unordered_set<std::string> BaseStructures;
		std::unordered_set<std::string> ReflectedEnums;
		std::unordered_map<std::string, bool> ReflectedClasses;
	};

	/** True when a type names an object class by its prefix; all that is known of a forward declaration. */
	bool HasObjectPrefix(const std::string& Name);
} // namespace HeaderTool
