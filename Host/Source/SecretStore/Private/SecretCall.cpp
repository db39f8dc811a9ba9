#include "SecretCall.h"

#include "SecretLibrary.h"

namespace Host
{
	namespace
	{
		const SecretSchema Schema = {
			"halvex.StoredValue",
			SECRET_SCHEMA_NONE,
			{
				{ "store", SECRET_SCHEMA_ATTRIBUTE_STRING },
				{ "section", SECRET_SCHEMA_ATTRIBUTE_STRING },
				{ "key", SECRET_SCHEMA_ATTRIBUTE_STRING },
				{ nullptr, SECRET_SCHEMA_ATTRIBUTE_STRING },
			},
			0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
		};

		/** Lets go of an object of the library at its end; may be null. */
		template <typename Type>
		class TLibraryObject
		{
		public:
			explicit TLibraryObject(Type* InObject) : Object(InObject) {}
			~TLibraryObject()
			{
				if (Object)
				{
					FSecretLibrary::Get()->g_object_unref(Object);
				}
			}
			TLibraryObject(const TLibraryObject&) = delete;
			TLibraryObject& operator=(const TLibraryObject&) = delete;

			explicit operator bool() const { return Object != nullptr; }
			Type* Get() const { return Object; }

		private:
			Type* Object;
		};

		/** The attributes by which the service finds a value. */
		class FAttributes
		{
		public:
			FAttributes(const FSecretLibrary& InLibrary, const FStoredValueName& Name)
				: Library(InLibrary)
				, Store(*Name.Store)
				, Section(*Name.Section)
				, Key(*Name.Key)
				, Table(Library.g_hash_table_new(Library.g_str_hash, Library.g_str_equal))
			{
				Insert("store", Store);
				Insert("section", Section);
				Insert("key", Key);
			}

			~FAttributes() { Library.g_hash_table_unref(Table); }
			FAttributes(const FAttributes&) = delete;
			FAttributes& operator=(const FAttributes&) = delete;

			GHashTable* Get() const { return Table; }

		private:
			void Insert(const char* Attribute, const FTCHARToUTF8& Text)
			{
				Library.g_hash_table_insert(Table, const_cast<char*>(Attribute), const_cast<char*>(Text.Get()));
			}

			const FSecretLibrary& Library;
			const FTCHARToUTF8 Store;
			const FTCHARToUTF8 Section;
			const FTCHARToUTF8 Key;
			GHashTable* const Table;
		};

		/** Whether an error was reported, which is let go of. */
		bool TakeError(const FSecretLibrary& Library, GError* Error)
		{
			if (Error)
			{
				Library.g_error_free(Error);
			}
			return Error != nullptr;
		}

		/** Whether values can go to the user's own collection without a question to the user. */
		bool IsUnlocked(const FSecretLibrary& Library, SecretService* Service, GCancellable* Cancellable)
		{
			const TLibraryObject<SecretCollection> Collection(Library.secret_collection_for_alias_sync(Service, SECRET_COLLECTION_DEFAULT, SECRET_COLLECTION_NONE, Cancellable, nullptr));
			return Collection && !Library.secret_collection_get_locked(Collection.Get());
		}

		ESecretAnswer SetValue(const FSecretLibrary& Library, SecretService* Service, const FSecretCall& Call, GCancellable* Cancellable)
		{
			const FAttributes Attributes(Library, Call.Name);
			const FString Label = Call.Name.Store + TEXT(": ") + Call.Name.Key;
			const FTCHARToUTF8 Text(*Call.Value, Call.Value.Len());
			SecretValue* const Secret = Library.secret_value_new(Text.Get() ? Text.Get() : "", Text.Length(), "text/plain");
			const bool bStored = Library.secret_service_store_sync(Service, &Schema, Attributes.Get(), SECRET_COLLECTION_DEFAULT, TCHAR_TO_UTF8(*Label), Secret, Cancellable, nullptr);
			Library.secret_value_unref(Secret);
			return bStored ? ESecretAnswer::Done : ESecretAnswer::Unavailable;
		}

		ESecretAnswer GetValue(const FSecretLibrary& Library, SecretService* Service, FSecretCall& Call, GCancellable* Cancellable)
		{
			const FAttributes Attributes(Library, Call.Name);
			GError* Error = nullptr;
			GList* const Found = Library.secret_service_search_sync(Service, &Schema, Attributes.Get(), SECRET_SEARCH_LOAD_SECRETS, Cancellable, &Error);
			if (TakeError(Library, Error))
			{
				return ESecretAnswer::Unavailable;
			}
			if (!Found)
			{
				return ESecretAnswer::Absent;
			}
			SecretValue* const Secret = Library.secret_item_get_secret(static_cast<SecretItem*>(Found->data));
			if (Secret)
			{
				gsize Size = 0;
				const gchar* const Text = Library.secret_value_get(Secret, &Size);
				Call.Value = FString(FUTF8ToTCHAR(Text, int32(Size)).Get());
				Library.secret_value_unref(Secret);
			}
			Library.g_list_free_full(Found, Library.g_object_unref);
			// Without its secret it lies in another collection, which is locked.
			return Secret ? ESecretAnswer::Done : ESecretAnswer::Unavailable;
		}

		ESecretAnswer DeleteValue(const FSecretLibrary& Library, SecretService* Service, const FSecretCall& Call, GCancellable* Cancellable)
		{
			const FAttributes Attributes(Library, Call.Name);
			GError* Error = nullptr;
			const bool bDeleted = Library.secret_service_clear_sync(Service, &Schema, Attributes.Get(), Cancellable, &Error);
			return TakeError(Library, Error) ? ESecretAnswer::Unavailable : bDeleted ? ESecretAnswer::Done : ESecretAnswer::Absent;
		}
	}

	FSecretCall::FSecretCall(ESecretCall InKind, const FStoredValueName& InName, const FString& InValue)
		: Kind(InKind)
		, Name(InName)
		, Value(InValue)
	{
		const FSecretLibrary* const Library = FSecretLibrary::Get();
		Cancellable = Library ? Library->g_cancellable_new() : nullptr;
	}

	FSecretCall::~FSecretCall()
	{
		if (Cancellable)
		{
			FSecretLibrary::Get()->g_object_unref(Cancellable);
		}
	}

	void FSecretCall::Cancel()
	{
		if (Cancellable)
		{
			FSecretLibrary::Get()->g_cancellable_cancel(Cancellable);
		}
	}

	ESecretAnswer FSecretCall::Run()
	{
		if (!Cancellable)
		{
			return ESecretAnswer::Unavailable;
		}
		const FSecretLibrary& Library = *FSecretLibrary::Get();
		const TLibraryObject<GDBusConnection> Bus(Library.g_bus_get_sync(G_BUS_TYPE_SESSION, Cancellable, nullptr));
		if (!Bus)
		{
			return ESecretAnswer::Unavailable;
		}
		// The end of the bus would end the program.
		Library.g_dbus_connection_set_exit_on_close(Bus.Get(), false);
		// A connection of this call's own: one that is kept hears of a lock only in a program that runs the library's loop.
		const TLibraryObject<SecretService> Service(Library.secret_service_open_sync(Library.secret_service_get_type(), nullptr, SECRET_SERVICE_OPEN_SESSION, Cancellable, nullptr));
		if (!Service || !IsUnlocked(Library, Service.Get(), Cancellable))
		{
			return ESecretAnswer::Unavailable;
		}
		switch (Kind)
		{
		case ESecretCall::Set:
			return SetValue(Library, Service.Get(), *this, Cancellable);
		case ESecretCall::Get:
			return GetValue(Library, Service.Get(), *this, Cancellable);
		case ESecretCall::Delete:
			return DeleteValue(Library, Service.Get(), *this, Cancellable);
		}
		return ESecretAnswer::Unavailable;
	}
}
