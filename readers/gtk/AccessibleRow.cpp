// SPDX-License-Identifier: MIT

// The items of AccessibleRows.

#include "AccessibleRows.h"
#include "dragdrop/ListCtrlSource.h"

#include <atk/atk.h>

namespace columnimport {

namespace {

struct Item {
    AtkObject parent;
    AccessibleRows *rows; // null once the row is gone
    long row;
};

Item &itemOf(void *object) {
    return *static_cast<Item *>(object);
}

AtkObjectClass *parentClass() {
    return ATK_OBJECT_CLASS(g_type_class_peek(ATK_TYPE_OBJECT));
}

int getIndex(AtkObject *object) {
    return static_cast<int>(itemOf(object).row);
}

AtkStateSet *refStates(AtkObject *object) {
    const Item &item = itemOf(object);
    AtkStateSet *states = parentClass()->ref_state_set(object);
    const auto set = [states](AtkStateType state, bool holds) {
        if (holds) {
            atk_state_set_add_state(states, state);
        }
    };
    set(ATK_STATE_TRANSIENT, true);
    set(ATK_STATE_DEFUNCT, item.rows == nullptr);
    if (item.rows == nullptr) {
        return states;
    }
    ListCtrlSource &list = item.rows->list();
    const bool isCurrent = item.row == list.currentRow();
    const bool isVisible = list.IsShownOnScreen();
    const long top = list.GetTopItem();
    for (const AtkStateType always :
         {ATK_STATE_ENABLED, ATK_STATE_SENSITIVE, ATK_STATE_FOCUSABLE, ATK_STATE_SELECTABLE}) {
        set(always, true);
    }
    set(ATK_STATE_VISIBLE, isVisible);
    set(ATK_STATE_SHOWING, isVisible && item.row >= top && item.row < top + list.GetCountPerPage());
    set(ATK_STATE_SELECTED, list.marks().isMarked(item.row));
    set(ATK_STATE_ACTIVE, isCurrent);
    set(ATK_STATE_FOCUSED, isCurrent && list.HasFocus());
    return states;
}

void initClass(void *itemClass, void *) {
    AtkObjectClass *accessible = ATK_OBJECT_CLASS(itemClass);
    accessible->get_index_in_parent = getIndex;
    accessible->ref_state_set = refStates;
}

void getExtents(AtkComponent *object, int *x, int *y, int *width, int *height, AtkCoordType from) {
    const Item &item = itemOf(object);
    wxRect rect;
    if (item.rows != nullptr && item.rows->list().GetItemRect(item.row, rect)) {
        ListCtrlSource &list = item.rows->list();
        rect.SetPosition(list.ClientToScreen(rect.GetPosition()));
        if (from != ATK_XY_SCREEN) {
            rect.SetPosition(wxGetTopLevelParent(&list)->ScreenToClient(rect.GetPosition()));
        }
    }
    *x = rect.x;
    *y = rect.y;
    *width = rect.width;
    *height = rect.height;
}

int grabFocus(AtkComponent *object) {
    const Item &item = itemOf(object);
    if (item.rows == nullptr) {
        return FALSE;
    }
    item.rows->list().moveTo(item.row);
    item.rows->list().SetFocus();
    return TRUE;
}

void initComponent(void *component, void *) {
    static_cast<AtkComponentIface *>(component)->get_extents = getExtents;
    static_cast<AtkComponentIface *>(component)->grab_focus = grabFocus;
}

GType itemType() {
    static const GType type = [] {
        const GType item = g_type_register_static_simple(
            ATK_TYPE_OBJECT, "ColumnImportAccessibleRow", sizeof(AtkObjectClass), initClass,
            sizeof(Item), nullptr, GTypeFlags());
        const GInterfaceInfo component = {initComponent, nullptr, nullptr};
        g_type_add_interface_static(item, ATK_TYPE_COMPONENT, &component);
        return item;
    }();
    return type;
}

} // namespace

AtkObject *AccessibleRows::makeItem(long row) {
    auto *object = static_cast<AtkObject *>(g_object_new(itemType(), nullptr));
    itemOf(object).rows = this;
    itemOf(object).row = row;
    atk_object_set_name(object, m_list.inWords(row).utf8_str());
    atk_object_set_role(object, ATK_ROLE_LIST_ITEM);
    atk_object_set_parent(object, m_accessible);
    return object;
}

void AccessibleRows::retireItem(AtkObject *item) {
    itemOf(item).rows = nullptr;
    atk_object_notify_state_change(item, ATK_STATE_DEFUNCT, TRUE);
}

} // namespace columnimport
