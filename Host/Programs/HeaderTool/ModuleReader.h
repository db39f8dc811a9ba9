#pragma once

#include "Model.h"
#include "TranslationUnit.h"
#include "TypeReader.h"

#include <map>
#include <optional>

namespace HeaderTool
{
	/** Which macro left a mark in the syntax tree. */
	enum class EMark
	{
		Class,
		Interface,
		Struct,
		Enum,
		Delegate,
		Property,
		Function,
		Body,
	};

	/** A reflection macro found in the syntax tree. */
	struct FMark
	{
		EMark Kind;
		std::shared_ptr<FSourceFile> File;
		unsigned Offset = 0;
		unsigned Line = 0;
	};

	/** Everything that one module declares for reflection. */
	struct FModule
	{
		std::string Name;
		std::vector<FHeader> Headers;
		/** Classes and structures, this module's and those they derive from, by name. */
		std::map<std::string, FKnownClass> KnownClasses;
		/** Reflected types of other modules that the headers include: C++ name and place, by script name. */
		std::map<std::string, std::pair<std::string, FLocation>> ForeignTypes;
	};

	/** Turns the syntax tree into the model. */
	class FModuleReader
	{
	public:
		FModuleReader(const FOptions& InOptions, const FTranslationUnit& InUnit, FDiagnostics& InDiagnostics);

		FModule Read();

	private:
		/** A declaration of one of the module's headers with the macro ahead of it. */
		struct FItem
		{
			size_t Header;
			std::optional<FMark> Mark;
			CXCursor Cursor;
		};

		void CollectItems(std::vector<FItem>& OutItems);
		void ReadItem(const FItem& Item);
		void ReadMarkedItem(const FItem& Item, const FMark& Mark);
		bool IsBaseStructure(CXCursor Cursor) const;
		void AddReflectedEnum(CXCursor Cursor);
		void AddForeignType(CXCursor Cursor);
		void FindMisplaced(CXCursor Scope, const std::string& Where, size_t Header);

		/** Index of the module's header that a file is; -1 for another file. */
		int FindHeader(CXFile File) const;
		std::shared_ptr<FSourceFile> GetSource(CXFile File);
		/** The reflection macro that the cursor stands for, if it is the mark of one. */
		std::optional<FMark> GetMark(CXCursor Cursor);
		/** Name of the delegate macro that made the cursor; empty when none did. */
		std::string GetDelegateMacro(CXCursor Cursor);

		void ReadEnum(FHeader& Header, const FMark& Mark, CXCursor Cursor);
		bool ReadDelegate(
			std::vector<FDelegate>& Out, const std::optional<FMark>& Mark, CXCursor Cursor, const std::string& OuterClass);
		void ReadDelegateTypes(FDelegate& Delegate, CXCursor Class, bool bHasResult);
		void ReadClass(FHeader& Header, const FMark* Mark, CXCursor Cursor);
		void ReadBases(FClass& Class, CXCursor Cursor);
		void ReadMembers(FClass& Class, CXCursor Cursor);
		void ReadMember(FClass& Class, std::optional<FMark>& Pending, CXCursor Child);
		void ReadPropertyMember(FClass& Class, const FMark& Mark, CXCursor Child);
		void ReadFunctionMember(FClass& Class, const FMark& Mark, CXCursor Child);
		void ReadConstructor(FClass& Class, CXCursor Child);
		FFunction ReadFunction(const FMark& Mark, CXCursor Cursor);
		FParameter ReadParameter(const FSourceFile& File, CXCursor Cursor);
		void LearnBases(CXCursor Cursor);
		void Learn(CXCursor Cursor);

		/** Name, place, specifiers and comment of what a macro marks. */
		void FillDeclaration(FDeclaration& Declaration, const FMark& Mark, const std::string& Name);

		const FOptions& Options;
		const FTranslationUnit& Unit;
		FDiagnostics& Diagnostics;
		FTypeReader Types;
		FModule Module;
		std::vector<CXFileUniqueID> HeaderIds;
		std::map<std::string, std::shared_ptr<FSourceFile>> Sources;
		/** Where the last reflected member's declaration starts: a second declarator starts there too. */
		unsigned LastMemberStart = 0;
	};
} // namespace HeaderTool
