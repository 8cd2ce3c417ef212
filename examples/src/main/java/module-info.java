/** A first program with Tavrel, run as a module. */
module com.kestrum.tavrel.example {
    requires com.kestrum.tavrel;
    // Read through com.kestrum.tavrel already (it requires it transitively); named for clarity.
    requires com.kestrum.corvel;
    // The cell filter here is made with new and called by the toolkit, which needs nothing more.
    // A package whose Java nodes, cell filters or elements the toolkit should make by their type
    // name alone (copying a node, reading a file) would be opened to the extension:
    //     opens com.kestrum.tavrel.example to com.kestrum.tavrel;
}
