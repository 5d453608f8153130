#include "TestPlugIn.h"

/* A node of the name of its file; a drop on it is taken by "b.so" alone. */

IS_CALLED("nodes");
ACCEPTS
HAS_ROLES(DWPI_TPF_NODE | DWPI_TPF_EXPORT)

static int isSecond(void) {
    return ownFile()[0] == 'b';
}

/* With the handle as its file's name. */
static void noteCall(const char* what, DwHandle handle) {
    note(what, handle == NULL ? "nothing" : (const char*)handle);
}

DwHandle DWPI_TPF_onNew(void) {
    static char name[64];
    snprintf(name, sizeof(name), "%s", ownFile());
    note("onNew", "");
    return name;
}

uint32_t DWPI_TPF_onUpdate(DwHandle handle) {
    noteCall("onUpdate ", handle);
    return 1;
}

uint32_t DWPI_TPF_onUpdateNodes(DwHandle handle) {
    noteCall("onUpdateNodes ", handle);
    return DW_addNode(ownFile(), 2, "\\Project", (DwNode) "");
}

uint32_t DWPI_TPF_onDelete(DwHandle handle) {
    noteCall("onDelete ", handle);
    return 1;
}

uint32_t DWPI_TPF_onCommand(DwHandle handle, const char* node, uint32_t command, uint32_t query) {
    if (query != 0)
        return isSecond() && command == DW_NODE_EDIT;
    noteCall("onCommand ", handle);
    note("of ", node);
    return 1;
}

uint32_t DWPI_TPF_toString(DwHandle handle, const char* node, char* buffer, uint32_t size) {
    noteCall("toString ", handle);
    if (isSecond())
        return 1;
    snprintf(buffer, size, "%s=1\nno line\nkey = two words # rest\n", node);
    return 0;
}

uint32_t DWPI_TPF_isDroppable(DwHandle handle, const char* target, const char* dragged, uint32_t keyState,
                              uint32_t* effect) {
    noteCall("isDroppable ", handle);
    note(target, dragged);
    *effect = isSecond() && keyState == DW_KEY_CONTROL ? DW_DROP_COPY : DW_DROP_MOVE;
    return (uint32_t)isSecond();
}

uint32_t DWPI_TPF_onDrop(DwHandle handle, const char* target, const char* key, const char* value,
                         uint32_t effect) {
    char line[256];
    snprintf(line, sizeof(line), "%s %s=%s %u %s", target, key, value, (unsigned)effect,
             handle == NULL ? "nothing" : (const char*)handle);
    note("onDrop ", line);
    return (uint32_t)isSecond();
}

uint32_t DWPI_TPF_export(DwHandle handle, const char* projectPath) {
    noteCall("export ", handle);
    note("export ", projectPath);
    return 1;
}
