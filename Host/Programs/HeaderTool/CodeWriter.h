#pragma once

#include "Metadata.h"
#include "ModuleReader.h"

namespace HeaderTool
{
	/** Collects lines of code at an indentation. */
	class FCode
	{
	public:
		void Line(const std::string& Content = {});
		void Open(const std::string& Content = {});
		/** Closes a brace; Tail follows it, for example ";". */
		void Close(const std::string& Tail = {});

		const std::string& GetText() const { return Text; }

	private:
		std::string Text;
		int Depth = 0;
	};

	/** Writes the table of a declaration's metadata, if it has any, and returns what refers to it. */
	std::string WriteMetadata(FCode& Code, const std::string& Name, const FMetadata& Metadata);

	/** Writes parameter structure, parameter table and call of one function as members of the reflection structure. */
	void WriteFunctionMembers(FCode& Code, const FClass& Class, const FFunction& Function);
	/** The function's row in the table of functions. */
	std::string MakeFunctionRow(const FFunction& Function);
	/** Body of an event, outside of the reflection structure. */
	void WriteEventBody(FCode& Code, const FClass& Class, const FFunction& Function);
	/** Body of an interface's Execute_ function. */
	void WriteExecuteBody(FCode& Code, const FClass& Class, const FFunction& Function);

	/** Writes the structure that describes the signature of a delegate. */
	void WriteDelegateSignature(FCode& Code, const FModule& Module, const FDelegate& Delegate, bool bOuterIsClass);
	/** Function that yields the signature. */
	void WriteDelegateAccessor(FCode& Code, const FDelegate& Delegate);

	/** The class and the body of its interface where it is one (null otherwise). */
	void WriteClass(FCode& Code, const FModule& Module, const FClass& Class, const FClass* Body);
	void WriteStruct(FCode& Code, const FModule& Module, const FClass& Struct);
	void WriteEnum(FCode& Code, const FModule& Module, const FEnum& Enum);

	/** Property table of a class or structure. */
	void WriteProperties(FCode& Code, const FClass& Class);
} // namespace HeaderTool
