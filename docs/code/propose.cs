// SPDX-License-Identifier: MIT
using System;
using System.Runtime.InteropServices;

static class Propose {
    const string Library = "libcolumnimport-propose.so.0.4"; // on Windows "columnimport"
    const UnmanagedType Text = UnmanagedType.LPUTF8Str;

    [DllImport(Library)] static extern IntPtr columnimport_new();
    [DllImport(Library)] static extern void columnimport_free(IntPtr import);
    [DllImport(Library)] static extern int columnimport_add_column(IntPtr import, [MarshalAs(Text)] string name);
    [DllImport(Library)] static extern int columnimport_set_file(IntPtr import, [MarshalAs(Text)] string path);
    [DllImport(Library)] static extern int columnimport_propose(IntPtr import);
    [DllImport(Library)] static extern int columnimport_match_position(IntPtr import, int column);

    static void Main(string[] arguments) {
        IntPtr import = columnimport_new();
        string[] columns = { "holename", "easting", "dip" };
        foreach (string column in columns) columnimport_add_column(import, column);
        columnimport_set_file(import, arguments[0]);
        columnimport_propose(import);
        for (int i = 0; i < columns.Length; ++i)
            Console.WriteLine($"{columns[i]} {columnimport_match_position(import, i)}");
        columnimport_free(import);
    }
}
