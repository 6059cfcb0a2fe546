; The yard with nothing that moves, drawn pixel by pixel into `ground` when a level begins.

kCell           equ 16                  ; pixels
kHudY           equ kRows * kCell

kEdgeUp         equ 1                   ; sides of a cell on which something else lies
kEdgeLeft       equ 2
kEdgeRight      equ 4
kEdgeDown       equ 8

DrawGround:
        mov     es, [ground]
        mov     word [noise], 771
        call    DrawDarkSnow
        mov     bx, yard_pines
        mov     cx, kYardPines
.pine:  mov     ax, [bx]
        mov     dx, [bx + 2]
        mov     si, sprite_pine
        call    DrawSprite
        add     bx, 4
        loop    .pine
        xor     bx, bx
.cell:  movzx   si, byte [floor + bx]
        shl     si, 1
        mov     bp, [cell_pixels + si]
        test    bp, bp
        jz      .next
        call    FindEdges
        call    CellPlace
        call    DrawCell
.next:  inc     bx
        cmp     bx, kCells
        jb      .cell
        jmp     DrawHudFrame

; Snow in the dark, all around.
DrawDarkSnow:
        xor     di, di
        mov     cx, kHudY * kWidth
.pixel: call    Noise
        mov     ah, kSnow + 3
        cmp     al, 14
        adc     ah, 0
        cmp     al, 4
        adc     ah, 0
        mov     al, ah
        stosb
        loop    .pixel
        ret

; AX = x, DX = y of the cell BX on the screen.
CellPlace:
        push    cx
        mov     ax, bx
        mov     cl, kColumns
        div     cl
        movzx   dx, al
        movzx   ax, ah
        shl     dx, 4
        shl     ax, 4
        pop     cx
        ret

; `edges` of the cell BX.
FindEdges:
        mov     al, [floor + bx]
        mov     ah, 0
        cmp     [floor + bx - kColumns], al
        je      .left
        or      ah, kEdgeUp
.left:  cmp     [floor + bx - 1], al
        je      .right
        or      ah, kEdgeLeft
.right: cmp     [floor + bx + 1], al
        je      .down
        or      ah, kEdgeRight
.down:  cmp     [floor + bx + kColumns], al
        je      .done
        or      ah, kEdgeDown
.done:  mov     [edges], ah
        mov     al, [floor + bx - kColumns]
        mov     [cell_above], al
        ret

; BP tells the colours of the cell at AX, DX; it gets the place in the cell in CX, DX and gives AL.
DrawCell:
        push    bx
        imul    di, dx, kWidth
        add     di, ax
        xor     dx, dx
.row:   xor     cx, cx
.pixel: call    bp
        stosb
        inc     cx
        cmp     cx, kCell
        jb      .pixel
        add     di, kWidth - kCell
        inc     dx
        cmp     dx, kCell
        jb      .row
        pop     bx
        ret

; AL = a number of no meaning.
Noise:  mov     ax, [noise]
        imul    ax, ax, 25173
        add     ax, 13849
        mov     [noise], ax
        mov     al, ah
        ret

; Trodden snow, in the shadow of a wall.
YardPixel:
        call    Noise
        mov     ah, kSnow + 10
        cmp     al, 240
        jb      .dark
        add     ah, 3
.dark:  cmp     al, 20
        jae     .shade
        dec     ah
.shade: cmp     byte [cell_above], kWall
        jne     .done
        cmp     dx, 4
        jae     .done
        sub     ah, 3
.done:  mov     al, ah
        ret

; A round flat stone with a spot of gold.
PlacePixel:
        mov     si, cx
        shl     si, 1
        sub     si, 15
        imul    si, si
        mov     bx, dx
        shl     bx, 1
        sub     bx, 15
        imul    bx, bx
        add     si, bx
        cmp     si, 14 * 14
        ja      YardPixel
        cmp     si, 4 * 4
        jbe     .spot
        cmp     si, 7 * 7
        jbe     .face
        cmp     si, 9 * 9
        jbe     .ring
        cmp     si, 12 * 12
        jbe     .face
        mov     al, kStone + 13
        cmp     dx, 6
        jbe     .done
        mov     al, kStone + 3
        ret
.face:  call    Noise
        and     al, 1
        add     al, kStone + 9
        ret
.ring:  mov     al, kGlow + 6
        ret
.spot:  mov     al, kGlow + 12
.done:  ret

; Ice with streaks of light, snow lying along its edges.
IcePixel:
        call    OnEdge
        jc      .snow
        mov     bx, cx
        add     bx, dx
        and     bx, 15
        mov     al, [ice_streaks + bx]
        mov     bl, al
        call    Noise
        cmp     al, 250
        mov     al, bl
        jb      .done
        mov     al, kIce + 15
.done:  ret
.snow:  call    Noise
        and     al, 1
        add     al, kSnow + 12
        ret

; Carry: the pixel CX, DX lies on an edge of the cell.
OnEdge: mov     al, [edges]
        test    al, kEdgeUp
        jz      .left
        cmp     dx, 1
        jc      .done
.left:  test    al, kEdgeLeft
        jz      .right
        cmp     cx, 1
        jc      .done
.right: test    al, kEdgeRight
        jz      .down
        cmp     cx, kCell - 1
        cmc
        jc      .done
.down:  test    al, kEdgeDown
        jz      .done
        cmp     dx, kCell - 1
        cmc
.done:  ret

; A wall of stones under a roof of dark tiles, with snow on it.
kEaves          equ 10                  ; where the stones begin, below the roof

WallPixel:
        mov     al, [edges]
        test    al, kEdgeDown
        jz      .roof
        cmp     dx, kEaves
        jae     StonePixel
        cmp     dx, kEaves - 4
        jae     .tile
.roof:  test    al, kEdgeLeft
        jz      .right
        cmp     cx, 3
        jb      .side
.right: test    al, kEdgeRight
        jz      .up
        cmp     cx, kCell - 3
        jae     .side
.up:    test    al, kEdgeUp
        jz      .snow
        cmp     dx, 2
        jb      .ridge
.snow:  call    Noise
        and     al, 1
        add     al, kSnow + 14
        ret
.ridge: mov     al, kStone + 4
        ret
.side:  mov     bx, dx
        jmp     .row
.tile:  mov     bx, cx
.row:   and     bx, 3
        mov     al, [roof_tiles + bx]
        ret

StonePixel:
        cmp     dx, kEaves
        je      .shadow
        mov     bx, cx
        cmp     dx, kEaves + 3
        je      .shadow
        jb      .upper
        add     bx, 4
.upper: and     bx, 7
        mov     al, kStone + 2
        jz      .done
        call    Noise
        and     al, 1
        add     al, kStone + 8
        cmp     bx, 1
        jne     .done
        add     al, 3
.done:  ret
.shadow:
        mov     al, kStone + 1
        ret

; Beside the largest of the yards.
yard_pines:     dw 14, 6, 44, 22, -6, 48, 26, 74, 50, 112, 4, 122, 284, 2, 252, 34, 302, 52, 276, 82
                dw 250, 118, 296, 128
kYardPines      equ ($ - yard_pines) / 4
cell_pixels:    dw 0, YardPixel, PlacePixel, IcePixel, WallPixel
ice_streaks:    db kIce + 10, kIce + 10, kIce + 11, kIce + 14, kIce + 15, kIce + 12, kIce + 10
                db kIce + 10, kIce + 10, kIce + 11, kIce + 13, kIce + 11, kIce + 10, kIce + 9
                db kIce + 9, kIce + 10
roof_tiles:     db kStone + 2, kStone + 5, kStone + 7, kStone + 4

section .bss
noise:          resw 1
edges:          resb 1
cell_above:     resb 1
section .text
