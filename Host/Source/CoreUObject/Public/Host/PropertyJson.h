#pragma once

#include "CoreMinimal.h"
#include "Host/JsonDocument.h"
#include "Templates/Function.h"

class FProperty;
class UObject;
class UScriptStruct;
class UStruct;

namespace Host
{
	class FJsonWriter;

	/**
	 * Reflected values from and to JSON.
	 *
	 * numbers, booleans    as JSON has them
	 * names, strings       strings
	 * texts                strings, or "NSLOCTEXT(\"Namespace\", \"Key\", \"Source\")"
	 * enumerators          their name, short or with the enumeration; several bits of a flags enumeration joined by "|"
	 * structures           objects by member name; members that are not named keep their value. A structure of numbers also as an
	 *                      array in the order of its members, any structure also in text form "(X=1,Y=2)"
	 * colours              "#RRGGBB[AA]" in sRGB, or their components
	 * arrays, sets         arrays
	 * maps                 arrays of [key, value] pairs, or objects
	 * object references    paths; null for none; a name alone is that of an object beside the owner. An instanced one may be an object {"Class": ..., "Name": ..., "Properties": {...}},
	 *                      where the class may be left out when an object is there already
	 * soft references      paths, which are not followed
	 */
	class COREUOBJECT_API FPropertyJson
	{
	public:
		/** Takes one message, "file:line:column: property 'A.B': ...". */
		using FReport = TFunctionRef<void(const FString& Message)>;

		/** Reads the members of a JSON object into an object; messages are errors in the log. Returns the number of messages. */
		static int32 ReadObject(const FJsonNode& Node, UObject* Object);
		static int32 ReadObject(const FJsonNode& Node, UObject* Object, FReport Report);

		/**
		 * Reads the members of a JSON object into a structure. What cannot be read is reported and keeps its value; the rest is
		 * read. Owner is the object that instanced objects are made in; it may be null. Returns the number of messages.
		 */
		static int32 ReadStruct(const FJsonNode& Node, const UStruct* Struct, void* Value, UObject* Owner, FReport Report);

		/** Reads the value of one property, all elements of a C array. Returns the number of messages. */
		static int32 ReadValue(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report);

		/** As ReadValue for one element of a C array, or of a container. */
		static int32 ReadElement(const FJsonNode& Node, const FProperty* Property, void* Value, UObject* Owner, FReport Report);

		/** Reads a structure from JSON of another kind than an object; false when it does not read that kind. */
		using FStructReader = bool (*)(const FJsonNode& Node, const UScriptStruct* Struct, void* Value);

		/** Gives a structure, by script path, a shorter form in JSON. Tried ahead of the general forms. */
		static void AddStructReader(const FString& StructPath, FStructReader Reader);

		/** Writes {"Class": ..., "Properties": {...}} with the properties that differ from the class's defaults. */
		static void WriteObject(FJsonWriter& Writer, const UObject* Object);

		/** Writes an object of the members that differ from Defaults; of all members when that is null. */
		static void WriteStruct(FJsonWriter& Writer, const UStruct* Struct, const void* Value, const void* Defaults, const UObject* Owner);

		/** Writes the value of one property, all elements of a C array. */
		static void WriteValue(FJsonWriter& Writer, const FProperty* Property, const void* Value, const UObject* Owner);

		/** Properties whose value reading and writing leave out: delegates, and those marked Transient or SkipSerialization. */
		static bool IsStored(const FProperty* Property);
	};
}
