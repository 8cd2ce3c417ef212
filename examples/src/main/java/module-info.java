/** A first program with Tavrel, run as a module. */
module com.kestrum.tavrel.example {
    requires com.kestrum.tavrel;
    requires com.kestrum.corvel;
}
