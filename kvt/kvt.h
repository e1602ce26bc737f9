#ifndef KVT_KVT_H
#define KVT_KVT_H

// Everything kvt offers, in one include.

#include <kvt/draw/rgba.h>
#include <kvt/draw/pixel.h>
#include <kvt/draw/double_blit.h>
#include <kvt/draw/lines.h>
#include <kvt/draw/shade.h>
#include <kvt/sprite/sprite.h>
#include <kvt/sprite/text.h>
#include <kvt/ui/core/theme.h>
#include <kvt/ui/core/region_saver.h>
#include <kvt/ui/core/object.h>
#include <kvt/ui/buttons/normal_button.h>
#include <kvt/ui/buttons/gfx_button.h>
#include <kvt/ui/buttons/multi_gfx_button.h>
#include <kvt/ui/core/screen.h>
#include <kvt/ui/buttons/sign_button.h>
#include <kvt/ui/buttons/bool_chooser.h>
#include <kvt/ui/bars/generic_horz_int_bar.h>
#include <kvt/ui/bars/generic_vert_int_bar.h>
#include <kvt/ui/bars/vert_scroll_bar.h>
#include <kvt/ui/bars/horz_value_bar.h>
#include <kvt/ui/edit/text_edit.h>
#include <kvt/ui/lists/generic_list.h>
#include <kvt/ui/lists/string_list.h>
#include <kvt/ui/lists/file_lister.h>
#include <kvt/math/point.h>
#include <kvt/math/matrix.h>
#include <kvt/util/list.h>
#include <kvt/util/dirlister.h>
#include <kvt/util/name_scan.h>
#include <kvt/util/char_code.h>
#include <kvt/ui/lists/file_chooser.h>
#include <kvt/ui/dialogs/sdb_template.h>
#include <kvt/ui/dialogs/sdb_open_file.h>
#include <kvt/ui/dialogs/sdb_save_file.h>
#include <kvt/ui/dialogs/file_dialogs.h>

#endif
