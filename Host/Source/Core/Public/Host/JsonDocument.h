#pragma once

#include "Containers/Array.h"
#include "Containers/StringView.h"
#include "Containers/UnrealString.h"

#include <memory>

namespace Host
{
	class FJsonDocument;
	struct FJsonContent;

	enum class EJsonKind : uint8
	{
		Null,
		Boolean,
		Number,
		String,
		Array,
		Object
	};

	/** "null", "a boolean", "a number", "a string", "an array", "an object": for messages that say what was found. */
	CORE_API const TCHAR* DescribeJsonKind(EJsonKind Kind);

	/** How much of a document is accepted. A document beyond a limit is refused as a whole. */
	struct FJsonLimits
	{
		/** Arrays and objects inside each other. */
		int32 MaxDepth = 64;
		int32 MaxNodes = 8 * 1024 * 1024;
		int64 MaxBytes = 64 * 1024 * 1024;
	};

	/**
	 * One value of a document: a light handle, valid as long as the document lives unchanged.
	 * An invalid handle stands for a member that is not there; it reads as null, has no children and no place.
	 */
	class FJsonNode
	{
	public:
		FJsonNode() = default;

		bool IsValid() const { return Document != nullptr; }
		explicit operator bool() const { return IsValid(); }

		CORE_API EJsonKind GetKind() const;
		bool IsNull() const { return GetKind() == EJsonKind::Null; }
		bool IsBool() const { return GetKind() == EJsonKind::Boolean; }
		bool IsNumber() const { return GetKind() == EJsonKind::Number; }
		bool IsString() const { return GetKind() == EJsonKind::String; }
		bool IsArray() const { return GetKind() == EJsonKind::Array; }
		bool IsObject() const { return GetKind() == EJsonKind::Object; }

		/** Each leaves the output alone and returns false when the value is of another kind. */
		CORE_API bool TryGetBool(bool& OutValue) const;
		CORE_API bool TryGetNumber(double& OutValue) const;
		CORE_API bool TryGetString(FString& OutValue) const;
		/** A whole number without loss; also one written with a fraction of zero. False when it is out of range. */
		CORE_API bool TryGetInteger(int64& OutValue) const;
		CORE_API bool TryGetInteger(int32& OutValue) const;
		CORE_API bool TryGetUnsigned(uint64& OutValue) const;

		/** The text of a string, ended by a zero character; empty for any other kind. */
		CORE_API FStringView GetString() const;

		/** The name of this member of an object, ended by a zero character; empty elsewhere. */
		CORE_API FStringView GetKey() const;

		/** Elements of an array or members of an object; 0 for any other kind. */
		CORE_API int32 Num() const;
		/** The member of that name, case sensitive; an invalid node when there is none. Looks at one member after the other. */
		CORE_API FJsonNode Find(FStringView Key) const;
		/** The element or member at a place; an invalid node when there is none. Steps from the first one. */
		CORE_API FJsonNode At(int32 Index) const;

		/** Where the value starts, both counted from 1; 0 for an invalid node. A column is a code point. */
		CORE_API int32 GetLine() const;
		CORE_API int32 GetColumn() const;
		/** "file:line:column", the head of a message about this value. */
		CORE_API FString Where() const;

		/** Visits elements or members in their order: for (const FJsonNode Child : Node). */
		class FIterator
		{
		public:
			FIterator(const FJsonDocument* InDocument, uint32 InIndex) : Document(InDocument), Index(InIndex) {}
			FJsonNode operator*() const { return FJsonNode(Document, Index); }
			CORE_API FIterator& operator++();
			bool operator==(const FIterator& Other) const { return Index == Other.Index; }

		private:
			const FJsonDocument* Document;
			uint32 Index;
		};
		CORE_API FIterator begin() const;
		CORE_API FIterator end() const;

	private:
		friend FJsonDocument;
		FJsonNode(const FJsonDocument* InDocument, uint32 InIndex) : Document(InDocument), Index(InIndex) {}

		const FJsonDocument* Document = nullptr;
		uint32 Index = 0;
	};

	/**
	 * A JSON text (RFC 8259, UTF-8) as a flat array of values in the order of the text, each knowing its place in it.
	 * Comments are not allowed. Reading never recurses, so a deeply nested text costs no stack.
	 */
	class FJsonDocument
	{
	public:
		CORE_API FJsonDocument();
		CORE_API ~FJsonDocument();
		CORE_API FJsonDocument(FJsonDocument&&) noexcept;
		CORE_API FJsonDocument& operator=(FJsonDocument&&) noexcept;

		/**
		 * Reads a file. Returns false, with one error and no root, when it cannot be read, is no JSON or passes a limit.
		 * Nothing is logged: the caller says what the failure means, with the texts of GetErrors().
		 */
		CORE_API bool LoadFile(const FString& Filename, const FJsonLimits& Limits = FJsonLimits());

		/** As LoadFile, from UTF-8 bytes; a byte order mark is skipped. The name stands for the file in messages. */
		CORE_API bool Parse(const void* Bytes, int64 Size, const FString& Name, const FJsonLimits& Limits = FJsonLimits());
		CORE_API bool Parse(const FString& Text, const FString& Name, const FJsonLimits& Limits = FJsonLimits());

		/** The outermost value; invalid when nothing was read. */
		CORE_API FJsonNode GetRoot() const;

		/**
		 * Messages "file:line:column: what was found and what was expected", in the order found. After a success only
		 * members named twice are among them: the first one of them counts, the others are left out.
		 */
		CORE_API const TArray<FString>& GetErrors() const;

		/** The name that messages give the document. */
		CORE_API const FString& GetName() const;

	private:
		friend FJsonNode;
		std::unique_ptr<FJsonContent> Content;
	};
}
