#pragma once

#include "CoreMinimal.h"

// GLib's headers have parameters named as the engine's macros.
#pragma push_macro("check")
#undef check
#include <libsecret/secret.h>
#pragma pop_macro("check")

namespace Host
{
	/**
	 * The functions of libsecret, and of the libraries that it stands on, that are called here. They are looked up when they are
	 * first wanted: most runs of most programs never keep a secret, and loading them takes longer than a whole start.
	 */
#define HALVEX_SECRET_FUNCTIONS(X) \
	X(g_bus_get_sync) \
	X(g_cancellable_cancel) \
	X(g_cancellable_new) \
	X(g_dbus_connection_set_exit_on_close) \
	X(g_error_free) \
	X(g_hash_table_insert) \
	X(g_hash_table_new) \
	X(g_hash_table_unref) \
	X(g_list_free_full) \
	X(g_object_unref) \
	X(g_str_equal) \
	X(g_str_hash) \
	X(secret_collection_for_alias_sync) \
	X(secret_collection_get_locked) \
	X(secret_item_get_secret) \
	X(secret_service_clear_sync) \
	X(secret_service_get_type) \
	X(secret_service_open_sync) \
	X(secret_service_search_sync) \
	X(secret_service_store_sync) \
	X(secret_value_get) \
	X(secret_value_new) \
	X(secret_value_unref)

	struct FSecretLibrary
	{
#define HALVEX_DECLARE(Name) decltype(&::Name) Name = nullptr;
		HALVEX_SECRET_FUNCTIONS(HALVEX_DECLARE)
#undef HALVEX_DECLARE

		/** Null when this machine has no such library. May be called on any thread. */
		static const FSecretLibrary* Get();
	};
}
